package tessaly.str.diskarray;

/** The user LAN of an array. Layout assumed. */
public class QVUserLANInformation {
    /**
     * Always 2 elements, one for each controller. Hand over as many, none of them null. Null in a
     * new object.
     */
    public QVUserLANDetail[] ctl;
    /** Mode of changing the maintenance address, the library's own value. */
    public int mainte_ip_change_mode;
    /** Mode of the last setting, the library's own value. */
    public int last_set_mode;
    /** Logout instruction, the library's own value. */
    public int logout_instruction;
    /** Whether IPv6 is used, the library's own value. */
    public int ipv6_used;
    /** IP version to set, the library's own value. */
    public int set_ipversion;
}
