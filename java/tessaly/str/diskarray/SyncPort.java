package tessaly.str.diskarray;

/** The synchronisation of a port. The sign of <code>rate</code> is assumed. */
public class SyncPort {
    /** Type of the board, the library's own value, -128 to 127. */
    public int board_type;
    /** Rate, the library's own value, -128 to 127. */
    public int rate;
}
