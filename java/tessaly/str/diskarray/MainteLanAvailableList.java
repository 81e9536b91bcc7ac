package tessaly.str.diskarray;

/** The addresses that the maintenance LAN may be given. Layout assumed. */
public class MainteLanAvailableList {
    public int available_count;
    /** 5 elements. */
    public MainteIPAddress[] available_address;
    public int rule_ipv4_minaddr;
    public int rule_ipv4_maxaddr;
    public int rule_ipv4_addition_value;
    public int rule_ipv4_base_value;
    /** 2 elements. */
    public MainteHostAddress[] available_host_ctl;
    /** 4 elements. */
    public MainteHostAddress[] available_host_nnc;
    public int available_count_ipv6;
    /** 5 elements. */
    public MainteIPAddress[] available_address_ipv6;
    public int rule_ipv6_minaddr;
    public int rule_ipv6_maxaddr;
    public int rule_ipv6_addition_value;
    public int rule_ipv6_base_value;
}
