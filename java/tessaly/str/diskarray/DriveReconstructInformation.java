package tessaly.str.diskarray;

/** How far the reconstruction of a drive has come. */
public class DriveReconstructInformation {
    /** Whether the other fields are valid, the library's own value. */
    public int valid;
    /** What the reconstruction does, the library's own code. */
    public int status_code;
    /** How far it has come, the library's own number. */
    public int progress_ratio;
    /** Slot of the drive. */
    public int hdu_no;
    /** Enclosure of the drive. */
    public int unit_no;
}
