package tessaly.str.diskarray;

/** A slice of what an array tells of itself: tuning. Layout assumed. */
public class ArrayAllInfo_Tuning {
    public int valid_index;
    public OnlineTuningParam on_tuning;
    public PrefetchTuning pre_tuning;
    public LuOwnership luowner;
}
