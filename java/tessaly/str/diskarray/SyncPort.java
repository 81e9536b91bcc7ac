package tessaly.str.diskarray;

/** The synchronisation of a port. The sign of <code>rate</code> is assumed. */
public class SyncPort {
    public int board_type;
    public int rate;
}
