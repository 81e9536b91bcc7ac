package tessaly.str.diskarray;

/** How target IDs are configured. Layout assumed. */
public class TargetConfig {
    public int single;
    /** 16 elements. */
    public int[] multi;
    /** 16 elements. */
    public TargetLunList[] mapping;
}
