package tessaly.str.diskarray;

/** The roles of an array. Layout assumed. */
public class QVAccountRoleInformation {
    public int role_valid_index;
    /** Always 32 elements. */
    public QVAccountRole[] role_info;
}
