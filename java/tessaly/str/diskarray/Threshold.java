package tessaly.str.diskarray;

/** The numbers of errors at which a drive is reported. */
public class Threshold {
    public int mechanical_recover;
    public int mechanical_unrecover;
    public int media_recover;
    public int media_unrecover;
    public int read_write_recover;
    public int read_write_unrecover;
    public int drive_recover;
    public int drive_unrecover;
    public int controller_recover;
    public int controller_unrecover;
    public int scsi_recover;
    public int scsi_unrecover;
    public int correctable_error;
    public int uncorrectable_error;
}
