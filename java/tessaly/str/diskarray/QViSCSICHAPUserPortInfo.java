package tessaly.str.diskarray;

/** The CHAP users of one port. */
public class QViSCSICHAPUserPortInfo {
    /** Not 0 where the port is there. */
    public int port_valid;
    /** Security of the targets, the library's own value. */
    public int security;
    /** Number of users that the port can have. */
    public int user_max_count;
    /** Number of users; <code>user</code> has its full length all the same. */
    public int user_count;
    /**
     * Always 512 elements; those in use have a <code>user_valid</code> other than 0. Hand over as
     * many, none of them null. Null in a new object.
     */
    public QViSCSICHAPUserInfo[] user;
}
