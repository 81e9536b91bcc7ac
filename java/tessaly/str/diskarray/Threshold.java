package tessaly.str.diskarray;

/** The drive error thresholds, by kind of error. */
public class Threshold {
    /** Mechanical errors, recovered. */
    public int mechanical_recover;
    /** Mechanical errors, not recovered. */
    public int mechanical_unrecover;
    /** Errors of the media, recovered. */
    public int media_recover;
    /** Errors of the media, not recovered. */
    public int media_unrecover;
    /** Errors of reading and writing, recovered. */
    public int read_write_recover;
    /** Errors of reading and writing, not recovered. */
    public int read_write_unrecover;
    /** Errors of the drive, recovered. */
    public int drive_recover;
    /** Errors of the drive, not recovered. */
    public int drive_unrecover;
    /** Errors of the controller, recovered. */
    public int controller_recover;
    /** Errors of the controller, not recovered. */
    public int controller_unrecover;
    /** SCSI errors, recovered. */
    public int scsi_recover;
    /** SCSI errors, not recovered. */
    public int scsi_unrecover;
    /** Errors that can be corrected. */
    public int correctable_error;
    /** Errors that cannot be corrected. */
    public int uncorrectable_error;
}
