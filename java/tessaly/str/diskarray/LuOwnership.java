package tessaly.str.diskarray;

/** The controllers that own the LUs. */
public class LuOwnership {
    /** Number of LUs; <code>lu</code> has its full length all the same. */
    public int count;
    /** Always 8,192 elements, of which the first <code>count</code> are in use. */
    public LuOwnershipInfo[] lu;
}
