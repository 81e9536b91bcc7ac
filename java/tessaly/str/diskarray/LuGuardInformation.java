package tessaly.str.diskarray;

/** The guard of each LU. */
public class LuGuardInformation {
    public int option;
    public int expirationlock;
    /** Always 8,192 elements. */
    public LuGuard[] lu;
}
