package tessaly.str.diskarray;

/** The mail that an array sends on an alert. */
public class EmailAlertInfo {
    /** The mail server, at most 63 bytes. */
    public String smtp = "";
    /** At most 255 bytes. */
    public String domain = "";
    /** At most 63 bytes. */
    public String from_address = "";
    /** 4 elements of at most 63 bytes. */
    public String[] to_address;
    /** At most 63 bytes. */
    public String reply_address = "";
    /** At most 63 bytes. */
    public String additional_info = "";
    /** 4 elements. */
    public int[] send_type;
}
