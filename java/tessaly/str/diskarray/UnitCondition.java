package tessaly.str.diskarray;

/**
 * The condition of every replaceable part of a unit.
 *
 * <p>A condition is the library's own code, -128 to 127 in arrays. Over the simulator 0 is a place
 * without a part and 1 a part in order. The arrays have these lengths whatever the counts say.
 */
public class UnitCondition {
    /** Revision of the controller's microprogram. */
    public String micro;
    /** Revision of the paired controller's microprogram. */
    public String micro_pair;
    /** Number of slots, as the library counts them. */
    public int max_slot;
    /** Cache memories, 4 elements. */
    public CacheStatus[] cache;
    /** Cache memories, 4 further elements. */
    public CacheStatus[] cache2;
    /** Conditions of the power supplies, 122 elements. */
    public int[] ps;
    /** Conditions of the fans, 244 elements. */
    public int[] fan;
    /** The library's own conditions, 2 elements. */
    public int[] ac;
    /** Conditions of the batteries, 4 elements. */
    public int[] batt;
    /** The library's own conditions, 2 elements. */
    public int[] batt_bk;
    /** Conditions of the interface boards by controller, 2 rows of 2. */
    public int[][] if_board;
    /** The library's own conditions, 2 elements. */
    public int[] optionBoard_2port;
    /** Conditions of the ports of controller 0, 8 elements. */
    public int[] ctl0_port;
    /** Conditions of the ports of controller 1, 8 elements. */
    public int[] ctl1_port;
    /** Kinds of the ports of controller 0, 8 elements: the library's own codes. */
    public int[] ctl0_port_type;
    /** Kinds of the ports of controller 1, 8 elements: the library's own codes. */
    public int[] ctl1_port_type;
    /** The library's own bytes by controller and port, 2 each: 2 x 8 x 2. */
    public byte[][][] connector;
    /** Device type, the library's own code in a signed byte: one above 127 comes out 256 less. */
    public int device_type;
    /** Detail of the device type, the library's own code, -128 to 127. */
    public int device_type_QVK_sub_code;
    /** The library's own text for controller 0. */
    public String ctl0_flush;
    /** The library's own text for controller 1. */
    public String ctl1_flush;
    /** IPv4 address of controller 0. */
    public String ctl0_ip;
    /** IPv4 address of controller 1. */
    public String ctl1_ip;
    /** IPv4 subnet of controller 0. */
    public String ctl0_subnet;
    /** IPv4 subnet of controller 1. */
    public String ctl1_subnet;
    /** IPv4 gateway of controller 0. */
    public String ctl0_gateway;
    /** IPv4 gateway of controller 1. */
    public String ctl1_gateway;
    /** IPv6 address of controller 0. */
    public String ctl0_ip_ipv6;
    /** IPv6 address of controller 1. */
    public String ctl1_ip_ipv6;
    /** Subnet prefix of controller 0, the library's own number. */
    public int ctl0_subnet_prefix;
    /** Subnet prefix of controller 1, the library's own number. */
    public int ctl1_subnet_prefix;
    /** IPv6 gateway of controller 0. */
    public String ctl0_gateway_ipv6;
    /** IPv6 gateway of controller 1. */
    public String ctl1_gateway_ipv6;
    /** Condition of the controller, the library's own code, 0 to 255. */
    public int controller_condition;
    /** Conditions of the enclosures, 122 elements. */
    public int[] enclosure;
    /** Conditions of the loops, 8 elements. */
    public int[] loop;
    /** Serial number of the array. */
    public String serial;
    /** The library's own identifier of the array. */
    public String serial_id;
    /** The library's own value. */
    public int add_info_index;
    /** Number of units, as the library counts them. */
    public int unit_count;
    /** Unit types, 61 elements, -128 to 127: the library's own codes. */
    public int[] unit_type;
    /** Details of the unit types, 61 elements, -128 to 127: the library's own codes. */
    public int[] unit_type_sub_code;
    /** Unit kinds, 61 elements, -128 to 127: the library's own codes. */
    public int[] unit_kind;
    /** Conditions of the network node controllers, 4 elements. */
    public int[] nnc;
    /** The network node controllers and their parts, 4 elements. */
    public NNCPartsStatus[] nnc_parts;
    /** Revisions of functions, 128 elements, -128 to 127: the library's own. */
    public int[] function_revision;
    /** Number of controllers. */
    public int ctl_num;
    /** Conditions of the additional batteries, 2 elements. */
    public int[] add_batt;
    /** The library's own values, 2 elements. */
    public int[] sa_unit_exchange_req;
    /** The library's own values, 3 elements. */
    public int[] sa_repair_inst_req;
    /** Device type as a text. */
    public String device_type_name;
}
