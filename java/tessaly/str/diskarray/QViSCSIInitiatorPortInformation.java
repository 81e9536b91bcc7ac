package tessaly.str.diskarray;

/** The registered iSCSI initiators of a single port. */
public class QViSCSIInitiatorPortInformation {
    /** Option, the library's own value. */
    public int option;
    /** The initiators of the port; change it and hand it over. */
    public QViSCSIInitiatorPortInfo port;
}
