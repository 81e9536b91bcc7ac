package tessaly.str.diskarray;

/** Errors of the host interface's transfers. */
public class StatisticalHostDma {
    /** Repetitions after errors. */
    public int err_rtry;
    /** Errors of transfers. */
    public int dma_errcnt;
    /** Errors of the bus. */
    public int bus_errcnt;
    /** Errors of the kind "la". */
    public int la_errcnt;
}
