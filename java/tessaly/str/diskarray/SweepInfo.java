package tessaly.str.diskarray;

/** Sweeping of SATA drives. */
public class SweepInfo {
    public int sweep_valid;
    public int interval_time;
    public int stop_time;
    public int unload;
    public int onlineVerify;
}
