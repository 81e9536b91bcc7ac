package tessaly.str.diskarray;

/** A stretch of a RAID group, of an LU or free. */
public class AreaInfo {
    /** Kind of the area, the library's own value. */
    public int areakind;
    /** Number of the LU; what it is where the area is free is the library's own. */
    public int lun;
    /** Number of the LU before the area; what it is before the first one is the library's own. */
    public int befor_lun;
    /** Capacity in blocks of 512 bytes, high word. */
    public int area_capa_h;
    /** Capacity, low word. */
    public int area_capa_l;
}
