package tessaly.str.diskarray;

/** Counters of the writing from the cache to the drives. Layout assumed. */
public class StatisticalWriteAfter {
    public int raid0_stripe_cnt;
    public int[] raid0_stripe_job;
    public int raid5_stripe_cnt;
    public int[] raid5_stripe_job;
    public int[] stripe_job_rmw;
    public int[] stripe_job_partial;
    public StatisticalWriteAfter_PDEVInfo[][] pdev;
}
