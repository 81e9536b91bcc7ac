package tessaly.str.diskarray;

/** A Farlink pair. */
public class FarlinkLuInfo {
    public int support_index;
    public int valid_index;
    public int lun;
    public int pair_status;
    public int pair_status_detail;
    public int pair_attr;
    public int changed_rate;
    public String remote_serial;
    public int remote_lu;
    public int capacity_h;
    public int capacity_l;
    public int ctg_valid;
    public int ctg_no;
    public String ctg_name;
    public String pair_name;
    public int copy_speed;
    public int fence_level;
}
