package tessaly.str.diskarray;

/**
 * The pairs inside an array; its light forms leave some fields unset.
 *
 * <p>{@link DiskArrayUtilityJNI#QV_GetPairInformationLite} returns the light form, {@link
 * DiskArrayUtilityJNI#QV_GetPairInformationLite2} and {@link
 * DiskArrayUtilityJNI#QV_GetAllInformationLite} the second one.
 */
public class PairInfo {
    /** Option, the library's own value. */
    public int option;
    /** 2 elements, the pool of each controller; null in the light form. */
    public PoolCtlCapa[] ctl;
    /** The pools of the array; null in both light forms. */
    public PoolSysCapa sys;
    /** Number of pairs. */
    public int pair_count;
    /**
     * 4,094 elements, 2,046 in the second light form; in use where <code>mirror_count</code> is not
     * 0.
     */
    public PairLUInfo[] lu;
}
