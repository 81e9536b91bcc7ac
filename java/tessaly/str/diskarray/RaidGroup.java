package tessaly.str.diskarray;

/**
 * A RAID group in the short form. Which elements of a list are in use, the library alone knows:
 * {@link RgDetail} says it of itself.
 */
public class RaidGroup {
    /** RAID group number. */
    public int rgnum;
    /** RAID level, the library's own value. */
    public int level;
    /** Drive position: port. */
    public int port;
    /** Drive position: row. */
    public int row;
    /** Number of drives across. */
    public int width;
    /** Number of drives deep. */
    public int depth;
    /** Capacity of the smallest drive, in the library's own unit. */
    public int minimum_capa;
    /** Whether <code>lastLBA</code> is set. */
    public int lastLBASet;
    /** Last logical block address. */
    public int lastLBA;
    /** Free capacity in blocks of 512 bytes, high word. */
    public int rest_h;
    /** Free capacity, low word. */
    public int rest;
    /** Capacity of the largest LU that can still be made, in the library's own unit. */
    public int lumaxcapa;
    /** Array model type, the library's own value. */
    public int unit_type;
    /** Array model sub-code, the library's own value. */
    public int unit_type_sub_code;
}
