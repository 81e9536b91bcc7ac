package tessaly.str.diskarray;

/** A RAID group in the detailed form. */
public class RgDetail {
    /** Not 0 where the entry is in use. */
    public int valid_index;
    /** RAID group number. */
    public int rgnum;
    /** RAID level, the library's own value. */
    public int level;
    /** Enclosure of the first drive. */
    public int start_unit_no;
    /** Slot of the first drive in its enclosure. */
    public int start_hdu_no;
    /** Number of drives in a parity group. */
    public int parity_hdu_count;
    /** Number of parity groups. */
    public int parity_count;
    /** Capacity of the smallest drive, in the library's own unit. */
    public int minimum_capa;
    /** Total capacity in blocks of 512 bytes, high word. */
    public int total_capa_h;
    /** Total capacity, low word. */
    public int total_capa_l;
    /** Free capacity in blocks of 512 bytes, high word. */
    public int rest_capa_h;
    /** Free capacity, low word. */
    public int rest_capa_l;
    /** Type of the RAID group, the library's own value. */
    public int rg_type;
    /** Number of LUs in the group. */
    public int lu_count;
}
