package tessaly.str.diskarray;

/** The synchronisation control of the ports of a controller. */
public class SyncControl {
    /** 4 elements, one for each port. Handed over: at most 4 elements. Null in a new object. */
    public SyncPort[] port_val;
}
