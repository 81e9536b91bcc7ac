package tessaly.str.diskarray;

/** A remote path to another array. */
public class RvrfSrcPath {
    public int valid_index;
    public int path_status;
    public int self_ctl_no;
    public int self_port_no;
    public int other_ctl_no;
    public int other_port_no;
    /** At most 15 bytes. */
    public String remote_ip_addr = "";
    public int remote_port_num;
    public int secret_valid;
    /** At most 32 bytes. */
    public String secret = "";
}
