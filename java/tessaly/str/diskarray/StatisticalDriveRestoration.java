package tessaly.str.diskarray;

/** Restorations of drives. */
public class StatisticalDriveRestoration {
    public int inter_cnt;
    public int back_cnt;
    public int system_cnt;
}
