package tessaly.str.diskarray;

/** The mail settings of this host. */
public class EmailInfo {
    public int on_off;
    /** At most 39 bytes. */
    public String domain = "";
    /** The mail server, at most 99 bytes. */
    public String smtp = "";
    /** The sender, at most 99 bytes. */
    public String from = "";
    /** The number of recipients. */
    public int tonum;
    /** At most 20 elements of at most 99 bytes; as a result, <code>tonum</code> elements. */
    public String[] to;
}
