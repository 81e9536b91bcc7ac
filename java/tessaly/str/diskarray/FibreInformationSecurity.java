package tessaly.str.diskarray;

/** The hosts that may use a Fibre Channel port. Layout assumed. */
public class FibreInformationSecurity {
    /** Access guard, the library's own value. */
    public int access_guard;
    /** Security of all LUNs, the library's own value. */
    public int all_lun_security;
    /** Number of permitted hosts; <code>permission</code> has its full length all the same. */
    public int permission_count;
    /** Level of the security check, the library's own value. */
    public int security_chk_lv;
    /**
     * Always 128 elements; which are in use, the count says. Hand over as many, none of them null.
     * Null in a new object.
     */
    public FibreInformationPermission[] permission;
}
