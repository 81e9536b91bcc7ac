package tessaly.str.diskarray;

/** The accounts of an array. Layout assumed. */
public class QVAccountInfoList {
    /** 21 elements; over the simulator those not in use have an empty <code>user_id</code>. */
    public QVAccountBaseInfo[] account_info;
}
