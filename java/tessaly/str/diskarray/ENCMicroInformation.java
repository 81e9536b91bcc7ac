package tessaly.str.diskarray;

/** An enclosure firmware. The codes are the library's own. */
public class ENCMicroInformation {
    /** Product type. */
    public int qv_type;
    /** Device type. */
    public int device_type;
    /** Type of the firmware. */
    public int micro_type;
    /** Its revisions. */
    public ENCMicroRevision read_rev;
}
