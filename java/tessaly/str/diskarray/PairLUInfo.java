package tessaly.str.diskarray;

/**
 * A primary logical unit and its pairs.
 *
 * <p>The light forms of {@link PairInfo} leave some fields 0: {@link
 * DiskArrayUtilityJNI#QV_GetPairInformationLite} and {@link
 * DiskArrayUtilityJNI#QV_GetPairInformationLite2} name what they fill.
 */
public class PairLUInfo {
    /** Number of the primary logical unit. */
    public int lun;
    /** Capacity in the library's own unit, in a single word. */
    public int capacity;
    /** Capacity in blocks of 512 bytes, high word. */
    public int capacity_h;
    /** Capacity in blocks of 512 bytes, low word. */
    public int capacity_l;
    /** Used capacity of the pool in blocks of 512 bytes, high word. */
    public int pool_usedcapa_h;
    /** Used capacity of the pool in blocks of 512 bytes, low word. */
    public int pool_usedcapa_l;
    /** Used rate of the pool, the library's own value. */
    public int pool_usedrate;
    /** How many elements of <code>m_info</code> are in use; 0 in an entry that is not. */
    public int mirror_count;
    /** 32 elements, used or not. */
    public MirrorLUInfo[] m_info;
}
