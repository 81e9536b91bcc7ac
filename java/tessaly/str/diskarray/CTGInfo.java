package tessaly.str.diskarray;

/** A consistency group. */
public class CTGInfo {
    public int ctg_valid;
    public int ctg_copytype;
    public int ctg_no;
    /** At most 31 bytes. */
    public String ctg_name = "";
    public int pair_status_detail0;
    public int pair_status_detail1;
}
