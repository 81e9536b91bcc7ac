package tessaly.str.diskarray;

/** The integrated LUs, in the second form. */
public class IntegrationLUInfo2 {
    public int integration_lu;
    /** How many elements of <code>parent_lu</code> are used. */
    public int parent_count;
    /** LU numbers, always 8,192 elements. */
    public int[] parent_lu;
    /** Always 8,192 elements. */
    public UniteLU2[] unite_info;
}
