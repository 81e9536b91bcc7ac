package tessaly.str.diskarray;

/** A slice of what an array tells of itself: iSCSI ports. Layout assumed. */
public class ArrayAllInfo_iSCSI {
    public int valid_index;
    public QViSCSIPortInformation iscsi_port;
    public QViSCSITargetInformationAll iscsi_target;
    public QViSCSIInitiatorInformationAll iscsi_initiator;
    public QViSCSILoginInitiatorInformationAll iscsi_logininitiator;
    public QViSCSICHAPUserInformationAll chap_user;
    public QViSNSInformation isns;
}
