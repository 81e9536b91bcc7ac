package tessaly.str.diskarray;

/** The CHAP users of an array. */
public class QViSCSICHAPUserInformationAll {
    public int option;
    /** 2 elements. */
    public QViSCSICHAPUserCTLInfo[] ctl;
}
