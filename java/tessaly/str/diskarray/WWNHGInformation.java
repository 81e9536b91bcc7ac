package tessaly.str.diskarray;

/** The hosts of the host groups. */
public class WWNHGInformation {
    public int lun_manage;
    /** 2 elements. */
    public WWNHGCtlInfo[] ctl;
}
