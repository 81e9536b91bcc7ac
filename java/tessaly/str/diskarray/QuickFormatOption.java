package tessaly.str.diskarray;

/** How quick formats are run. */
public class QuickFormatOption {
    /** Which settings are valid, the library's own value. */
    public int valid_index;
    /** Which settings are to change, the library's own value. */
    public int change_index;
    /** Priority mode, the library's own value. */
    public int priority_mode;
    /** Format mode, the library's own value. */
    public int format_mode;
}
