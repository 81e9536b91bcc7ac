package tessaly.str.diskarray;

/** Further session settings of an array. Layout assumed. */
public class AccountAdditionalInfo {
    public int keep_alive_time;
}
