package tessaly.str.diskarray;

/** The options of a controller's ports. Layout assumed. */
public class PortOptionCtlInfo {
    /**
     * LIP mode of each port, the library's own value: always 8 elements. Hand over at least as
     * many. Null in a new object.
     */
    public int[] lip_mode;
    /**
     * Common option of each port, the library's own value: always 8 elements. Hand over at least as
     * many. Null in a new object.
     */
    public int[] port_common_opt;
}
