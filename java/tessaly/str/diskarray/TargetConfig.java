package tessaly.str.diskarray;

/** How target IDs are configured. Layout assumed. */
public class TargetConfig {
    /** Single target ID, the library's own value. */
    public int single;
    /**
     * Several target IDs, the library's own values: always 16 elements. Hand over at least as many.
     * Null in a new object.
     */
    public int[] multi;
    /** Always 16 elements. Hand over as many, none of them null. Null in a new object. */
    public TargetLunList[] mapping;
}
