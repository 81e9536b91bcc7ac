package tessaly.str.diskarray;

/** The CHAP users of an array. Layout assumed. */
public class QViSCSICHAPUserInformationAll {
    public int option;
    /** 2 elements. */
    public QViSCSICHAPUserCTLInfo[] ctl;
}
