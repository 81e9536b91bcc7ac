package tessaly.str.diskarray;

/** The mail that an array sends on an alert. */
public class EmailAlertInfo {
    /** Mail server, at most 63 bytes. */
    public String smtp = "";
    /** Domain, at most 255 bytes. */
    public String domain = "";
    /** Sender, at most 63 bytes. */
    public String from_address = "";
    /**
     * Recipients, at most 4 elements of at most 63 bytes; always 4 in a result. Null in a new
     * object.
     */
    public String[] to_address;
    /** Address for answers, at most 63 bytes. */
    public String reply_address = "";
    /** Additional information, at most 63 bytes. */
    public String additional_info = "";
    /** Kinds of mail, the library's own values. 4 elements, no fewer. Null in a new object. */
    public int[] send_type;
}
