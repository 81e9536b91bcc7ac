package tessaly.str.diskarray;

/** All host groups. The name of <code>ctl</code> is assumed. */
public class HGList {
    /** 0 to 255. */
    public int lun_manage;
    /** Always 2 elements. */
    public HGCtlInfo[] ctl;
}
