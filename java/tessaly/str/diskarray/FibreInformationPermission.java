package tessaly.str.diskarray;

/** A host that may use a Fibre Channel port. Layout assumed. */
public class FibreInformationPermission {
    /** At most 16 bytes. */
    public String node_name = "";
    /** At most 16 bytes. */
    public String port_name = "";
    /** At most 6 bytes. */
    public String n_port_id = "";
    /** One bit for each logical unit. The native library copies into this array. */
    public byte[] lun_security_bitmap = new byte[256];
}
