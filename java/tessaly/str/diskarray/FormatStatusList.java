package tessaly.str.diskarray;

/** How far the formatting of all LUs is. */
public class FormatStatusList {
    /** Mode, the library's own value. */
    public int mode;
    /** How much of all is done, in percent. */
    public int totalpercent;
    /** Time that is left, in the library's own unit. */
    public int resttime;
    /** Always 2,048 elements, one for each LU from number 0 on. */
    public FormatStatus[] lu;
}
