package tessaly.str.diskarray;

/** How far the download of a BIOS came. The values are the library's own. */
public class NNCBiosDownloadStatus {
    /** State of the download. */
    public int downloadStatus;
    /** What went wrong. */
    public int errorInfo;
}
