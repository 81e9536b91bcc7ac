package tessaly.str.diskarray;

/** A pair with an array of another family. */
public class ZencopyLuInfo {
    public int lun;
    public int pair_status;
    public int pair_attr;
    public int changed_rate;
    public String remote_type;
    public String remote_serial;
    public String remote_ldev;
}
