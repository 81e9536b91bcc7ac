package tessaly.str.diskarray;

/** A RAID group in the detailed form. */
public class RgDetail {
    /** Whether the entry is in use. */
    public int valid_index;
    /** RAID group number. */
    public int rgnum;
    /** RAID level. */
    public int level;
    /** Unit (enclosure) number of the first drive. */
    public int start_unit_no;
    /** Number of the first drive. */
    public int start_hdu_no;
    /** Drives in a parity group. */
    public int parity_hdu_count;
    /** Number of parity groups. */
    public int parity_count;
    /** Capacity of the smallest drive. */
    public int minimum_capa;
    /** Total capacity, high word. */
    public int total_capa_h;
    /** Total capacity, low word. */
    public int total_capa_l;
    /** Free capacity, high word. */
    public int rest_capa_h;
    /** Free capacity, low word. */
    public int rest_capa_l;
    /** RAID group type. */
    public int rg_type;
    /** Number of LUs in the group. */
    public int lu_count;
}
