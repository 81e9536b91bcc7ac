package tessaly.str.diskarray;

/** A slice of what an array tells of itself: tuning. Layout assumed. */
public class ArrayAllInfo_Tuning {
    /** Which members are valid, the library's own value. */
    public int valid_index;
    /** Online tuning parameters. */
    public OnlineTuningParam on_tuning;
    /** Tuning of prefetching. */
    public PrefetchTuning pre_tuning;
    /** The controllers that own the LUs. */
    public LuOwnership luowner;
}
