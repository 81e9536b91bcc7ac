package tessaly.str.diskarray;

/** A stretch of a RAID group, of an LU or free. */
public class AreaInfo {
    public int areakind;
    /** LU number. */
    public int lun;
    /** LU before the area. */
    public int befor_lun;
    /** Capacity, high word. */
    public int area_capa_h;
    /** Capacity, low word. */
    public int area_capa_l;
}
