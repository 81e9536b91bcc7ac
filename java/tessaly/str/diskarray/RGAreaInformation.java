package tessaly.str.diskarray;

/** The areas of one RAID group. */
public class RGAreaInformation {
    /** RAID group number. */
    public int rgnum;
    /** Largest LU that can still be made. */
    public int lumaxcapa;
    /** The same in two words, the high one. */
    public int lumaxcapa_h;
    /** The low one. */
    public int lumaxcapa_l;
    /** Number of areas; the array is as long as ever. */
    public int area_count;
    /** Always 8,193 elements. */
    public AreaInfo[] area;
}
