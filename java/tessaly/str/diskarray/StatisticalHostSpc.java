package tessaly.str.diskarray;

/** Errors of the host ports. Layout assumed. */
public class StatisticalHostSpc {
    public StatisticalHostSpc_Info[] port;
}
