package tessaly.str.diskarray;

/**
 * The Fibre Channel ports of a controller. Layout assumed. No text may be null where it is handed
 * over.
 */
public class FibreInformation {
    /** LUN security, the library's own value. */
    public int lun_security;
    /** Which ports are there, the library's own value. */
    public int port_valid;
    /**
     * Topology of each port, the library's own value: always 8 elements. Hand over at least as
     * many. Null in a new object.
     */
    public int[] topology;
    /**
     * Reference topology of each port, the library's own value: always 8 elements. Hand over at
     * least as many. Null in a new object.
     */
    public int[] topology_ref;
    /**
     * Always 8 elements, one for each port. Hand over as many, none of them null. Null in a new
     * object.
     */
    public FibreInformationPort[] port;
    /**
     * Always 8 elements, the adapter of each port. Hand over as many, none of them null. Null in a
     * new object.
     */
    public FibreInformationSfc[] sfc;
    /**
     * Always 8 elements, the permitted hosts of each port. Hand over as many, none of them null.
     * Null in a new object.
     */
    public FibreInformationSecurity[] security;
    /** Product number, at most 7 bytes. */
    public String product_number = "";
}
