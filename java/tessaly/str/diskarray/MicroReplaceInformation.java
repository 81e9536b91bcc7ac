package tessaly.str.diskarray;

/** How far a replacement of the firmware came. */
public class MicroReplaceInformation {
    public int valid;
    public int WaitCancelreq;
    public int ReplaceCTL;
}
