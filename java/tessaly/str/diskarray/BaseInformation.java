package tessaly.str.diskarray;

/** What kind of array a unit is. The codes are the library's own. */
public class BaseInformation {
    /** The library's own value. */
    public int add_info_index;
    /** Revision of the running firmware. */
    public String micro;
    /** By its name, the revision of the firmware that is loaded next. */
    public String next_road_micro;
    /** Product type. */
    public int qv_type;
    /** Device type. */
    public int device_type;
    /** Detail of the device type. */
    public int device_type_QVK_sub_code;
    /** Kind of the ports. */
    public int port_type;
    /** Unit configuration. */
    public int unit_conf;
    /** By its name, the RAID levels that are supported, in the library's own coding. */
    public int sup_rglevel;
    /** The library's own value. */
    public int reserved1;
    /** The library's own value. */
    public int reserved2;
}
