package tessaly.str.diskarray;

/** The condition of every replaceable part of a unit. */
public class UnitCondition {
    /** The controller's microprogram. */
    public String micro;
    /** The paired controller's microprogram. */
    public String micro_pair;
    public int max_slot;
    /** 4 elements. */
    public CacheStatus[] cache;
    /** 4 elements. */
    public CacheStatus[] cache2;
    /** The power supplies, 122 elements. */
    public int[] ps;
    /** 244 elements. */
    public int[] fan;
    /** 2 elements. */
    public int[] ac;
    /** 4 elements. */
    public int[] batt;
    /** 2 elements. */
    public int[] batt_bk;
    /** By controller, 2 rows of 2. */
    public int[][] if_board;
    /** 2 elements. */
    public int[] optionBoard_2port;
    /** 8 elements. */
    public int[] ctl0_port;
    /** 8 elements. */
    public int[] ctl1_port;
    /** 8 elements. */
    public int[] ctl0_port_type;
    /** 8 elements. */
    public int[] ctl1_port_type;
    /** By controller and port, 2 bytes each: 2 x 8 x 2. */
    public byte[][][] connector;
    /** -128 to 127. */
    public int device_type;
    /** -128 to 127. */
    public int device_type_QVK_sub_code;
    public String ctl0_flush;
    public String ctl1_flush;
    public String ctl0_ip;
    public String ctl1_ip;
    public String ctl0_subnet;
    public String ctl1_subnet;
    public String ctl0_gateway;
    public String ctl1_gateway;
    public String ctl0_ip_ipv6;
    public String ctl1_ip_ipv6;
    public int ctl0_subnet_prefix;
    public int ctl1_subnet_prefix;
    public String ctl0_gateway_ipv6;
    public String ctl1_gateway_ipv6;
    /** 0 to 255. */
    public int controller_condition;
    /** 122 elements. */
    public int[] enclosure;
    /** 8 elements. */
    public int[] loop;
    public String serial;
    public String serial_id;
    public int add_info_index;
    public int unit_count;
    /** 61 elements. */
    public int[] unit_type;
    /** 61 elements. */
    public int[] unit_type_sub_code;
    /** 61 elements. */
    public int[] unit_kind;
    /** 4 elements. */
    public int[] nnc;
    /** 4 elements. */
    public NNCPartsStatus[] nnc_parts;
    /** 128 elements. */
    public int[] function_revision;
    public int ctl_num;
    /** 2 elements. */
    public int[] add_batt;
    /** 2 elements. */
    public int[] sa_unit_exchange_req;
    /** 3 elements. */
    public int[] sa_repair_inst_req;
    public String device_type_name;
}
