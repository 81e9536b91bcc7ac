package tessaly.str.diskarray;

/**
 * How drives' response times are diagnosed. The values are the library's own: change those of
 * {@link DiskArrayUtilityJNI#QV_GetDriveResponseDiag} and hand them back.
 */
public class DriveResponseDiag {
    /** Which fields are valid, the library's own value. */
    public int valid;
    /** How it is set, the library's own value. */
    public int set_mode;
    /** Mode, the library's own value. */
    public int mode;
    /** Threshold, in the library's own unit. */
    public int threshold;
    /** Diagnosis of SATA drives, the library's own value. */
    public int sata_diag;
    /** Threshold of the automatic diagnosis, in the library's own unit. */
    public int autodiag_threshold;
}
