package tessaly.str.diskarray;

/** An area of a RAID group. */
public class AreaInfo {
    /** Kind of the area, the library's own value. */
    public int areakind;
    /** Number of the LU; what it is where the area has none is the library's own. */
    public int lun;
    /** Number of the LU before the area; what it is before the first one is the library's own. */
    public int befor_lun;
    /** Capacity in blocks of 512 bytes, high word. */
    public int area_capa_h;
    /** Capacity, low word. */
    public int area_capa_l;
}
