package tessaly.str.diskarray;

/** How far the quick format of each LU is. */
public class QuickFormatStatusList {
    public int priority_mode;
    public int format_mode;
    /** Always 8,192 elements. */
    public QuickFormatStatus[] lu;
}
