package tessaly.str.diskarray;

/** Counters of write-after. Layout assumed. */
public class StatisticalWriteAfter {
    /** Stripes of RAID 0. */
    public int raid0_stripe_cnt;
    /** The library's own counters of RAID 0, 450 elements. */
    public int[] raid0_stripe_job;
    /** Stripes of RAID 5. */
    public int raid5_stripe_cnt;
    /** The library's own counters of RAID 5, 450 elements. */
    public int[] raid5_stripe_job;
    /** The library's own counters, 450 elements. */
    public int[] stripe_job_rmw;
    /** The library's own counters, 450 elements. */
    public int[] stripe_job_partial;
    /** The drives, 15 rows of 30. */
    public StatisticalWriteAfter_PDEVInfo[][] pdev;
}
