package tessaly.str.diskarray;

/** How drives' response times are diagnosed. */
public class DriveResponseDiag {
    public int valid;
    public int set_mode;
    public int mode;
    public int threshold;
    public int sata_diag;
    public int autodiag_threshold;
}
