package tessaly.str.diskarray;

/** How far the reconstruction of a drive has come. */
public class DriveReconstructInformation {
    public int valid;
    public int status_code;
    public int progress_ratio;
    public int hdu_no;
    public int unit_no;
}
