package tessaly.str.diskarray;

/** The addresses that the maintenance LAN may be given. Layout assumed. */
public class MainteLanAvailableList {
    /** How many elements of <code>available_address</code> are used. */
    public int available_count;
    /** IPv4 addresses, always 5 elements. */
    public MainteIPAddress[] available_address;
    /** Rule for IPv4: lowest address, the library's own value. */
    public int rule_ipv4_minaddr;
    /** Rule for IPv4: highest address, the library's own value. */
    public int rule_ipv4_maxaddr;
    /** Rule for IPv4: addition value, the library's own value. */
    public int rule_ipv4_addition_value;
    /** Rule for IPv4: base value, the library's own value. */
    public int rule_ipv4_base_value;
    /** Hosts' parts for the controllers, always 2 elements. */
    public MainteHostAddress[] available_host_ctl;
    /** Hosts' parts for the network node controllers, always 4 elements. */
    public MainteHostAddress[] available_host_nnc;
    /** How many elements of <code>available_address_ipv6</code> are used. */
    public int available_count_ipv6;
    /** IPv6 addresses, always 5 elements. */
    public MainteIPAddress[] available_address_ipv6;
    /** Rule for IPv6: lowest address, the library's own value. */
    public int rule_ipv6_minaddr;
    /** Rule for IPv6: highest address, the library's own value. */
    public int rule_ipv6_maxaddr;
    /** Rule for IPv6: addition value, the library's own value. */
    public int rule_ipv6_addition_value;
    /** Rule for IPv6: base value, the library's own value. */
    public int rule_ipv6_base_value;
}
