package tessaly.str.diskarray;

/** A part that failed. The numbers say where it is; which of them count is the library's own. */
public class ObstPartsInfo {
    /** What failed, the library's own code. */
    public int obstparts_code;
    /** Which fields are valid, the library's own value. */
    public int valid_index;
    /** Number of the controller. */
    public int ctl_num;
    /** Number of the enclosure. */
    public int unit_num;
    /** Number of the battery. */
    public int battery_num;
    /** Number of the fan. */
    public int fan_num;
    /** Number of the power supply. */
    public int ps_num;
    /** Number of the drive. */
    public int hdu_num;
    /** Number of the enclosure controller. */
    public int enc_num;
    /** Number of the UPS. */
    public int ups_num;
    /** Number of the connector. */
    public int connector_num;
    /** Number of the port. */
    public int port_num;
    /** Number of the cache memory. */
    public int cache_num;
    /** Number of the interface board; the name is spelled so. */
    public int if_borad_num;
    /** Number of the additional battery. */
    public int add_battery_num;
    /** The library's own count. */
    public int repair_insert_cnt;
    /** Code of the failure, the library's own text. */
    public String failure_code;
    /** Code to order the part by, the library's own text. */
    public String parts_order_code;
}
