package tessaly.str.diskarray;

/** The registered iSCSI initiators of an array. Layout assumed. */
public class QViSCSIInitiatorInformationAll {
    /** Option, the library's own value. */
    public int option;
    /** Always 2 elements, one for each controller. */
    public QViSCSIInitiatorCTLInfo[] ctl;
}
