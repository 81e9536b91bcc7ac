package tessaly.str.diskarray;

/** Information on a replacement of the firmware. The values are the library's own. */
public class MicroReplaceInformation {
    /** Whether the others are valid. */
    public int valid;
    /** By its name, whether a wait may be cancelled. */
    public int WaitCancelreq;
    /** By its name, the controller that is replaced. */
    public int ReplaceCTL;
}
