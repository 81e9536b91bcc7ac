package tessaly.str.diskarray;

/** The CHAP users of one controller. Layout assumed. */
public class QViSCSICHAPUserCTLInfo {
    /** Always 8 elements, one for each port. */
    public QViSCSICHAPUserPortInfo[] port;
}
