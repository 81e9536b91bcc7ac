package tessaly.str.diskarray;

/**
 * A registered unit: what it is called and where it is. The codes are the library's own and pass as
 * they are; of an int that is handed over as a byte the low byte goes.
 */
public class QVUnitParam {
    /** Name of the unit, at most 64 bytes. */
    public String unit_name = "";
    /** Group that the unit is shown in, at most 16 bytes. */
    public String group_name = "";
    /** Kind of connection, -128 to 127, the library's own code. */
    public int connect_type;
    /** Product type, -128 to 127, the library's own code. */
    public int qv_type;
    /** Device type, 0 to 255, the library's own code. */
    public int device_type;
    /** Unit configuration, -128 to 127, the library's own code. */
    public int unit_conf;
    /** Alert setting, -128 to 127, the library's own code. */
    public int alert;
    /** Address of controller 0, at most 255 bytes. */
    public String ctl0 = "";
    /** Address of controller 1, at most 255 bytes. */
    public String ctl1 = "";
    /** Serial number, at most 8 bytes. */
    public String serial = "";
    /** Whether the connection is secured: 0 or 1. */
    public int ssl_used;
}
