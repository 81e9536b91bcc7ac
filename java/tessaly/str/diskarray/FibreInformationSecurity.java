package tessaly.str.diskarray;

/** The hosts that may use a Fibre Channel port. Layout assumed. */
public class FibreInformationSecurity {
    public int access_guard;
    public int all_lun_security;
    public int permission_count;
    public int security_chk_lv;
    /** 128 elements, in use or not. */
    public FibreInformationPermission[] permission;
}
