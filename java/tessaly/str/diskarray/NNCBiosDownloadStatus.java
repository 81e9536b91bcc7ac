package tessaly.str.diskarray;

/** How far the download of a BIOS came. */
public class NNCBiosDownloadStatus {
    public int downloadStatus;
    public int errorInfo;
}
