package tessaly.str.diskarray;

/** Self-diagnosis of SATA drives. The values are the library's own. */
public class SmartInfo {
    /** Which fields are valid, the library's own value. */
    public int smart_valid;
    /** Threshold of reassignments, the library's own number. */
    public int reassign_thres;
}
