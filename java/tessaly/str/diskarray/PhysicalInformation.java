package tessaly.str.diskarray;

/**
 * Numbers of an array's parts. The comments say what the names say; whether a number is of what
 * there is or of what there can be, and whether of the array or of one of its units, are the
 * library's own.
 */
public class PhysicalInformation {
    /** Which of the fields are valid, the library's own value. */
    public int index;
    /** Which of the further fields are valid, the library's own value. */
    public int index2;
    /** Caches. */
    public int cache_count;
    /** Power supplies. */
    public int ps_count;
    /** Fans. */
    public int fan_count;
    /** The library's own value. */
    public int ac_count;
    /** Batteries. */
    public int batt_count;
    /** The library's own value. */
    public int battbk_count;
    /** Additional batteries. */
    public int add_batt_count;
    /** Drives of an enclosure, by the name. */
    public int hdd_hdu_count;
    /** Enclosures of drives, by the name. */
    public int hdd_unit_count;
    /** The library's own value. */
    public int sp_count;
    /** Enclosure controllers. */
    public int enc_count;
    /** Back-end loops. */
    public int loop_count;
    /** Back-end paths. */
    public int backendpath_count;
    /** Interface boards. */
    public int ifboard_count;
    /** Ports. */
    public int port_count;
    /** Units. */
    public int unit_count;
    /** Power supplies of a unit. */
    public int ps_unit_count;
    /** Fans of a unit. */
    public int fan_unit_count;
    /** Enclosure controllers of a unit. */
    public int enc_unit_count;
    /** Connectors. */
    public int connector_count;
    /** The library's own value. */
    public int hdd_sff_count;
    /** Processor cores. */
    public int cpu_core_count;
    /** Network node controllers. */
    public int nnc_count;
    /** Memory modules of a network node controller. */
    public int nnc_dimm_count;
    /** Power supplies of a network node controller. */
    public int nnc_ps_count;
    /** Fans of a network node controller. */
    public int nnc_fan_count;
    /** Connectors of a network node controller. */
    public int nnc_connector_count;
    /** Extension slots of a network node controller. */
    public int nnc_ext_slot_count;
    /** The library's own value. */
    public int repair_slot_count;
    /** 16 elements, the library's own. */
    public int[] reserved;
}
