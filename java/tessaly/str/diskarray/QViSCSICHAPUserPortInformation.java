package tessaly.str.diskarray;

/** The CHAP users of a single port. */
public class QViSCSICHAPUserPortInformation {
    public int option;
    public QViSCSICHAPUserPortInfo port;
}
