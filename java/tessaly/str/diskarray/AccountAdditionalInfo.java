package tessaly.str.diskarray;

/** Further session settings of an array. */
public class AccountAdditionalInfo {
    public int keep_alive_time;
}
