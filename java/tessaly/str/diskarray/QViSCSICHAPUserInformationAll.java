package tessaly.str.diskarray;

/** The CHAP users of an array. Layout assumed. */
public class QViSCSICHAPUserInformationAll {
    /** Option, the library's own value. */
    public int option;
    /** Always 2 elements, one for each controller. */
    public QViSCSICHAPUserCTLInfo[] ctl;
}
