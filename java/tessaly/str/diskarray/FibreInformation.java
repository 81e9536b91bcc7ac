package tessaly.str.diskarray;

/** The Fibre Channel ports of a controller. Layout assumed. */
public class FibreInformation {
    public int lun_security;
    public int port_valid;
    /** 8 elements, one for each port. */
    public int[] topology;
    /** 8 elements, one for each port. */
    public int[] topology_ref;
    /** 8 elements. */
    public FibreInformationPort[] port;
    /** 8 elements, one for each port. */
    public FibreInformationSfc[] sfc;
    /** 8 elements, one for each port. */
    public FibreInformationSecurity[] security;
    /** At most 7 bytes. */
    public String product_number = "";
}
