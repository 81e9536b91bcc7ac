package tessaly.str.diskarray;

/** Further session settings of an array. Layout assumed. */
public class AccountAdditionalInfo {
    /** Keep-alive time, in the library's own unit. */
    public int keep_alive_time;
}
