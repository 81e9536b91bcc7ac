package tessaly.str.diskarray;

/**
 * The mail settings of this host. The ints are read first, then the texts in the order in which
 * they stand here.
 */
public class EmailInfo {
    /** Whether mails are sent, the library's own value. */
    public int on_off;
    /** Domain, at most 39 bytes. */
    public String domain = "";
    /** Mail server, at most 99 bytes. */
    public String smtp = "";
    /** Sender, at most 99 bytes. */
    public String from = "";
    /** Number of recipients; passes as it is, whatever <code>to</code> holds. */
    public int tonum;
    /**
     * Recipients, at most 20 elements of at most 99 bytes. Null in a new object. In a result it has
     * <code>tonum</code> elements, but no fewer than 0 and no more than 20.
     */
    public String[] to;
}
