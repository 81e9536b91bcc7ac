package tessaly.str.diskarray;

/** The hosts of the host groups. Layout assumed. */
public class WWNHGInformation {
    public int lun_manage;
    /** 2 elements. */
    public WWNHGCtlInfo[] ctl;
}
