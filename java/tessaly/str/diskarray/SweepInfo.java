package tessaly.str.diskarray;

/** Sweeping of SATA drives. The values are the library's own. */
public class SweepInfo {
    /** Which fields are valid, the library's own value. */
    public int sweep_valid;
    /** Interval, in the library's own unit. */
    public int interval_time;
    /** Stop time, in the library's own unit. */
    public int stop_time;
    /** Unloading, the library's own value. */
    public int unload;
    /** Online verify, the library's own value. */
    public int onlineVerify;
}
