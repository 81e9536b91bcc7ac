package tessaly.str.diskarray;

/** A part that failed. */
public class ObstPartsInfo {
    public int obstparts_code;
    public int valid_index;
    public int ctl_num;
    public int unit_num;
    public int battery_num;
    public int fan_num;
    public int ps_num;
    public int hdu_num;
    public int enc_num;
    public int ups_num;
    public int connector_num;
    public int port_num;
    public int cache_num;
    public int if_borad_num;
    public int add_battery_num;
    public int repair_insert_cnt;
    public String failure_code;
    public String parts_order_code;
}
