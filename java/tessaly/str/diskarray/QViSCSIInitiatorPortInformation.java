package tessaly.str.diskarray;

/** The registered iSCSI initiators of a single port. */
public class QViSCSIInitiatorPortInformation {
    public int option;
    public QViSCSIInitiatorPortInfo port;
}
