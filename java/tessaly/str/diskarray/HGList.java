package tessaly.str.diskarray;

/** All host groups. */
public class HGList {
    /** 0 to 255. */
    public int lun_manage;
    /** Always 2 elements. */
    public HGCtlInfo[] ctl;
}
