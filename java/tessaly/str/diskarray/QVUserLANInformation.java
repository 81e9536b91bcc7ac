package tessaly.str.diskarray;

/** The user LAN of an array. Layout assumed. */
public class QVUserLANInformation {
    /** 2 elements. */
    public QVUserLANDetail[] ctl;
    public int mainte_ip_change_mode;
    public int last_set_mode;
    public int logout_instruction;
    public int ipv6_used;
    public int set_ipversion;
}
