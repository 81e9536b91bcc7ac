package tessaly.str.diskarray;

/** What is staged of the array's firmware. */
public class MicroFileInformation {
    /** Revision, at most 11 bytes. */
    public String micro;
    /** Whether it is valid, the library's own value. */
    public int valid;
    /** The library's own value. */
    public int booting_wait;
}
