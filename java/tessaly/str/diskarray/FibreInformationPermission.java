package tessaly.str.diskarray;

/**
 * A host that may use a Fibre Channel port. Layout assumed. No text may be null where it is handed
 * over.
 */
public class FibreInformationPermission {
    /** Node name, at most 16 bytes. */
    public String node_name = "";
    /** Port name, at most 16 bytes. */
    public String port_name = "";
    /** N-port ID, at most 6 bytes. */
    public String n_port_id = "";
    /**
     * 256 bytes, a bit for each of 2,048 logical units; the order of the bits is the library's own.
     * The native library copies into this array. Hand over at least as many.
     */
    public byte[] lun_security_bitmap = new byte[256];
}
