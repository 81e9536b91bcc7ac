package tessaly.str.diskarray;

/** A registered unit. */
public class QVUnitParam {
    /** At most 64 bytes of modified UTF-8. */
    public String unit_name = "";
    /** The group that the unit is shown in, at most 16 bytes. */
    public String group_name = "";
    /** Kind of connection, -128 to 127. */
    public int connect_type;
    /** Product type code, -128 to 127. */
    public int qv_type;
    /** Device type code, 0 to 255. */
    public int device_type;
    /** Unit configuration code, -128 to 127. */
    public int unit_conf;
    /** Alert setting, -128 to 127. */
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
