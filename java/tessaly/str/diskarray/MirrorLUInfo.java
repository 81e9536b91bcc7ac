package tessaly.str.diskarray;

/** A pair, as its primary logical unit sees it. */
public class MirrorLUInfo {
    public int mirror_no;
    public int lun;
    public int ctl_no;
    public int pool_no;
    public int pair_status;
    public int pair_status_detail;
    public int usedcapa;
    public int usedcapa_h;
    public int usedcapa_l;
    public int changed_rate;
    public int synchronized_rate;
    public PairCreateTime time;
    public DateTime split_time;
    public String add_message;
    public int ctg_valid;
    public int ctg_no;
    public String ctg_name;
    public String pair_name;
    public int copy_speed;
}
