package tessaly.str.diskarray;

/** Errors of the host interface's transfers. */
public class StatisticalHostDma {
    public int err_rtry;
    public int dma_errcnt;
    public int bus_errcnt;
    public int la_errcnt;
}
