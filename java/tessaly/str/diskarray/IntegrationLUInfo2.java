package tessaly.str.diskarray;

/** The integrated LUs, in the second form. */
public class IntegrationLUInfo2 {
    /** Integrated LUs, the library's own count. */
    public int integration_lu;
    /** How many elements of <code>parent_lu</code> are used. */
    public int parent_count;
    /** LU numbers, always 8,192 elements, of which the first <code>parent_count</code> are used. */
    public int[] parent_lu;
    /** Always 8,192 elements, one for each LU from number 0 on. */
    public UniteLU2[] unite_info;
}
