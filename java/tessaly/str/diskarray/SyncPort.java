package tessaly.str.diskarray;

/** The synchronisation of a port. */
public class SyncPort {
    public int board_type;
    public int rate;
}
