package tessaly.str.diskarray;

/** How SATA drives are restored. */
public class SATADriveRestoration {
    /** The library's own number. */
    public int collect_copy_times;
}
