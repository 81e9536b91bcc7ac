package tessaly.str.diskarray;

/** The synchronisation of the ports of a controller. */
public class SyncControl {
    /**
     * 4 elements, one for each port. To hand over: not null; an element that is null or missing
     * reaches the library as it lay in memory, and those behind 4 are left out.
     */
    public SyncPort[] port_val;
}
