package tessaly.str.diskarray;

/** An asynchronous pair. */
public class FarlinkAsyncLuInfo {
    public int lun;
    public int pair_status;
    public int pair_status_dist_flag;
    public int pair_attr;
    public int ctg_num;
    public String ctg_name;
    public String pair_name;
    public int lu_capacity;
    public int lu_capacity_h;
    public int lu_capacity_l;
    public int remote_lu;
    public String remote_serial;
    public int member_valid;
    public int synchronized_rate;
    public int difference_capacity;
    public int difference_capacity_h;
    public int difference_capacity_l;
    public int difference_rate;
    public DateTime synchronized_time;
    public int pool_no;
    public int pool_usedrate;
    public int copy_speed;
    public int fence_level;
    public int synchronized_sequence_no;
    public int svol_synchronized_sequence_no;
    public int pvol_resync_count;
    public int svol_resync_count;
    public int cycle_time;
}
