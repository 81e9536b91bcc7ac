package tessaly.str.diskarray;

/** How far the formatting of all LUs is. */
public class FormatStatusList {
    public int mode;
    public int totalpercent;
    public int resttime;
    /** Always 2,048 elements. */
    public FormatStatus[] lu;
}
