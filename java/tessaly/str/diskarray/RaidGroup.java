package tessaly.str.diskarray;

/** A RAID group in the short form. */
public class RaidGroup {
    /** RAID group number. */
    public int rgnum;
    /** RAID level. */
    public int level;
    /** Port of the first drive. */
    public int port;
    /** Row of the first drive. */
    public int row;
    /** Number of drives across. */
    public int width;
    /** Number of drives deep. */
    public int depth;
    /** Capacity of the smallest drive. */
    public int minimum_capa;
    /** Whether <code>lastLBA</code> is set. */
    public int lastLBASet;
    /** Last logical block address. */
    public int lastLBA;
    /** Free capacity, high word. */
    public int rest_h;
    /** Free capacity, low word. */
    public int rest;
    /** Largest LU that can still be made. */
    public int lumaxcapa;
    /** Array model type. */
    public int unit_type;
    /** Array model sub-code. */
    public int unit_type_sub_code;
}
