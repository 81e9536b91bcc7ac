package tessaly.str.diskarray;

/** The hosts known at the ports. Layout assumed. */
public class WWNInformation {
    /** LUN security option, the library's own value. */
    public int lun_security_opt;
    /**
     * Always 2 elements, one for each controller. Hand over as many, none of them null. Null in a
     * new object.
     */
    public WWNCtlInfo[] ctl;
}
