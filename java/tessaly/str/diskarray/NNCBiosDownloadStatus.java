package tessaly.str.diskarray;

/** The status of the download of a BIOS. The values are the library's own. */
public class NNCBiosDownloadStatus {
    /** Status of the download. */
    public int downloadStatus;
    /** Error information. */
    public int errorInfo;
}
