package tessaly.str.diskarray;

/** An enclosure controller. */
public class ENCStatus {
    /**
     * Its state, the library's own code; over the simulator 0 where there is none and 1 in order.
     */
    public int status;
    /** Its microprogram. */
    public ENCRevision enc_rev;
}
