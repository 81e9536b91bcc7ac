package tessaly.str.diskarray;

/** The registered iSCSI initiators of an array. Layout assumed. */
public class QViSCSIInitiatorInformationAll {
    public int option;
    /** 2 elements. */
    public QViSCSIInitiatorCTLInfo[] ctl;
}
