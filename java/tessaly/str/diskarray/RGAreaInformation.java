package tessaly.str.diskarray;

/** The areas of one RAID group. */
public class RGAreaInformation {
    /** RAID group number. */
    public int rgnum;
    /** Capacity of the largest LU that can still be made, in the library's own unit. */
    public int lumaxcapa;
    /** The same in two words, in blocks of 512 bytes, high word. */
    public int lumaxcapa_h;
    /** The same, low word. */
    public int lumaxcapa_l;
    /** Number of areas, which are the first elements of <code>area</code>. */
    public int area_count;
    /** Always 8,193 elements; those behind the count are not in use. */
    public AreaInfo[] area;
}
