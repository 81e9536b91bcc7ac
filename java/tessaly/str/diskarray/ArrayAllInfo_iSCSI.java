package tessaly.str.diskarray;

/** A slice of what an array tells of itself: iSCSI ports. Layout assumed. */
public class ArrayAllInfo_iSCSI {
    /** Which members are valid, the library's own value. */
    public int valid_index;
    /** The ports. */
    public QViSCSIPortInformation iscsi_port;
    /** Their targets. */
    public QViSCSITargetInformationAll iscsi_target;
    /** Their initiators. */
    public QViSCSIInitiatorInformationAll iscsi_initiator;
    /** Initiators that are logged in. */
    public QViSCSILoginInitiatorInformationAll iscsi_logininitiator;
    /** Their CHAP users. */
    public QViSCSICHAPUserInformationAll chap_user;
    /** Their iSNS servers. */
    public QViSNSInformation isns;
}
