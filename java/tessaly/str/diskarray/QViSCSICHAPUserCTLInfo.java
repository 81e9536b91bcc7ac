package tessaly.str.diskarray;

/** The CHAP users of one controller. */
public class QViSCSICHAPUserCTLInfo {
    /** 8 elements. */
    public QViSCSICHAPUserPortInfo[] port;
}
