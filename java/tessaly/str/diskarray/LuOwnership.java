package tessaly.str.diskarray;

/** The controllers that own the LUs. */
public class LuOwnership {
    /** Number of LUs; the array is as long as ever. */
    public int count;
    /** Always 8,192 elements. */
    public LuOwnershipInfo[] lu;
}
