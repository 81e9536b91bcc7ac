package tessaly.str.diskarray;

/** The file that LAN settings are exported to or imported from. Layout assumed. */
public class LANFile {
    /** At most 255 bytes. */
    public String filename = "";
}
