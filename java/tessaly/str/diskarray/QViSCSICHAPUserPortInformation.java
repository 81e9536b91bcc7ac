package tessaly.str.diskarray;

/** The CHAP users of a single port. */
public class QViSCSICHAPUserPortInformation {
    /** Option, the library's own value. */
    public int option;
    /** The CHAP users of the port; change it and hand it over. */
    public QViSCSICHAPUserPortInfo port;
}
