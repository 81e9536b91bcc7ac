package tessaly.str.diskarray;

/** All host groups. The name of <code>ctl</code> is assumed. */
public class HGList {
    /** LUN management, 0 to 255, the library's own value. */
    public int lun_manage;
    /** Always 2 elements, one for each controller. */
    public HGCtlInfo[] ctl;
}
