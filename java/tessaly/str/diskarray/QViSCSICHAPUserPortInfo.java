package tessaly.str.diskarray;

/** The CHAP users of one port. */
public class QViSCSICHAPUserPortInfo {
    public int port_valid;
    public int security;
    public int user_max_count;
    public int user_count;
    /** 512 elements, in use or not. */
    public QViSCSICHAPUserInfo[] user;
}
