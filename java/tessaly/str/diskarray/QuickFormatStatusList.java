package tessaly.str.diskarray;

/** How far the quick format of each LU is. */
public class QuickFormatStatusList {
    /** Priority mode, the library's own value. */
    public int priority_mode;
    /** Format mode, the library's own value. */
    public int format_mode;
    /** Always 8,192 elements, one for each LU from number 0 on. */
    public QuickFormatStatus[] lu;
}
