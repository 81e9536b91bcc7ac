package tessaly.str.diskarray;

/** The synchronisation of the ports of a controller. */
public class SyncControl {
    /** At most 4; those behind are left out. */
    public SyncPort[] port_val;
}
