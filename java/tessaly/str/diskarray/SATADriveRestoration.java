package tessaly.str.diskarray;

/** How SATA drives are restored. */
public class SATADriveRestoration {
    public int collect_copy_times;
}
