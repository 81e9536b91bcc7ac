package tessaly.str.diskarray;

/** The roles of an array. Layout assumed. */
public class QVAccountRoleInformation {
    /** Which roles are valid, the library's own coding. */
    public int role_valid_index;
    /** 32 elements, valid or not. */
    public QVAccountRole[] role_info;
}
