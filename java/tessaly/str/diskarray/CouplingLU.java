package tessaly.str.diskarray;

/** A pair, as a coupling of two logical units. */
public class CouplingLU {
    public int primary_stat;
    public int second_stat;
    public int second_stat_detail;
    public int primary_lu;
    public int second_lu;
    public int primary_switch_stat;
    public int second_switch_stat;
    public int mirror_no;
    public int capacity_h;
    public int capacity_l;
    public int synchronized_rate;
    public DateTime split_time;
    public String add_message;
    public int ctg_valid;
    public int ctg_no;
    public String ctg_name;
    public String pair_name;
    public int copy_speed;
}
