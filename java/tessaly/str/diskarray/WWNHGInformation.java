package tessaly.str.diskarray;

/** The hosts of the host groups. Layout assumed. */
public class WWNHGInformation {
    /** LUN management, the library's own value. */
    public int lun_manage;
    /**
     * Always 2 elements, one for each controller. Hand over as many, none of them null. Null in a
     * new object.
     */
    public WWNHGCtlInfo[] ctl;
}
