package tessaly.str.diskarray;

/** How many parts of each kind an array can hold. */
public class PhysicalInformation {
    public int index;
    public int index2;
    public int cache_count;
    public int ps_count;
    public int fan_count;
    public int ac_count;
    public int batt_count;
    public int battbk_count;
    public int add_batt_count;
    public int hdd_hdu_count;
    public int hdd_unit_count;
    public int sp_count;
    public int enc_count;
    public int loop_count;
    public int backendpath_count;
    public int ifboard_count;
    public int port_count;
    public int unit_count;
    public int ps_unit_count;
    public int fan_unit_count;
    public int enc_unit_count;
    public int connector_count;
    public int hdd_sff_count;
    public int cpu_core_count;
    public int nnc_count;
    public int nnc_dimm_count;
    public int nnc_ps_count;
    public int nnc_fan_count;
    public int nnc_connector_count;
    public int nnc_ext_slot_count;
    public int repair_slot_count;
    /** 16 elements. */
    public int[] reserved;
}
