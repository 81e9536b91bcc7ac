package tessaly.str.diskarray;

/** An enclosure firmware. */
public class ENCMicroInformation {
    public int qv_type;
    public int device_type;
    public int micro_type;
    public ENCMicroRevision read_rev;
}
