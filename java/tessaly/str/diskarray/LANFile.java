package tessaly.str.diskarray;

/** The file that LAN settings are exported to or imported from. Layout assumed. */
public class LANFile {
    /** Path of the file, at most 255 bytes. Not null. */
    public String filename = "";
}
