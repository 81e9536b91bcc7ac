package tessaly.str.diskarray;

/** A summary of an array. A capacity is in two words: high times 2^32 plus low, unsigned. */
public class ArrayCondition {
    public int login_kind;
    public int valid_index;
    public int login_result;
    /** 9 elements. */
    public int[] operation_auth;
    public int alert_valid;
    /** 2 elements. */
    public int[] alert;
    public int alert_sa;
    public int lu_count;
    public int all_lu_capa_h;
    public int all_lu_capa_l;
    public int unused_drive_count;
    public int unused_drive_capa_h;
    public int unused_drive_capa_l;
    public int drive_count;
    public int all_drive_capa_h;
    public int all_drive_capa_l;
}
