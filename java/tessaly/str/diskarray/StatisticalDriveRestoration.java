package tessaly.str.diskarray;

/** Restorations of drives. The kinds are the library's own. */
public class StatisticalDriveRestoration {
    /** Restorations of the kind "inter". */
    public int inter_cnt;
    /** Restorations of the kind "back". */
    public int back_cnt;
    /** Restorations of the kind "system". */
    public int system_cnt;
}
