package tessaly.str.diskarray;

/** The CHAP users of one controller. Layout assumed. */
public class QViSCSICHAPUserCTLInfo {
    /** 8 elements. */
    public QViSCSICHAPUserPortInfo[] port;
}
