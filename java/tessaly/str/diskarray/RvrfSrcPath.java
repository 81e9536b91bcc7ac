package tessaly.str.diskarray;

/** A path to another array. */
public class RvrfSrcPath {
    /** Whether the path is in use; 0 is no, other values are the library's own. */
    public int valid_index;
    /** State of the path, the library's own value. */
    public int path_status;
    /** Number of the controller in this array. */
    public int self_ctl_no;
    /** Number of the port in this array. */
    public int self_port_no;
    /** Number of the controller in the other array. */
    public int other_ctl_no;
    /** Number of the port in the other array. */
    public int other_port_no;
    /** IP address in the other array, at most 15 bytes; not null. */
    public String remote_ip_addr = "";
    /** Port number of that address. */
    public int remote_port_num;
    /** Whether <code>secret</code> is given, the library's own value. */
    public int secret_valid;
    /** Secret of the path, at most 32 bytes; not null. */
    public String secret = "";
}
