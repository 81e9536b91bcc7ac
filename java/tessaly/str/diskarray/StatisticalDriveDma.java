package tessaly.str.diskarray;

/** Errors of the drive interface's transfers. Layout assumed. */
public class StatisticalDriveDma {
    /** Repeated transfers. */
    public int dma_retry;
    /** Transfers repeated on a path. */
    public int dma_path_retry;
    /** Repetitions of the kind "drr". */
    public int drr_retry;
    /** Kinds of errors, 4 elements. */
    public StatisticalDriveDma_Error[] error;
}
