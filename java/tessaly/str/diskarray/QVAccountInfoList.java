package tessaly.str.diskarray;

/** The accounts of an array. Layout assumed. */
public class QVAccountInfoList {
    /** Always 21 elements; those not in use have an empty user_id. */
    public QVAccountBaseInfo[] account_info;
}
