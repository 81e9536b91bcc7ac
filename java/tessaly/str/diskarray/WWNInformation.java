package tessaly.str.diskarray;

/** The hosts known at the ports. Layout assumed. */
public class WWNInformation {
    public int lun_security_opt;
    /** 2 elements. */
    public WWNCtlInfo[] ctl;
}
