package tessaly.str.diskarray;

/** The guard of each LU. */
public class LuGuardInformation {
    /** Option, the library's own value. */
    public int option;
    /** Expiration lock, the library's own value. */
    public int expirationlock;
    /**
     * Always 8,192 elements, one for each LU from number 0 on; those in use have a
     * <code>lu_valid</code> other than 0.
     */
    public LuGuard[] lu;
}
