package tessaly.str.diskarray;

/** What kind of array a unit is. */
public class BaseInformation {
    public int add_info_index;
    public String micro;
    public String next_road_micro;
    public int qv_type;
    public int device_type;
    public int device_type_QVK_sub_code;
    public int port_type;
    public int unit_conf;
    public int sup_rglevel;
    public int reserved1;
    public int reserved2;
}
