package tessaly.str.diskarray;

/** Errors of the host ports. Layout assumed. */
public class StatisticalHostSpc {
    /** The ports, 4 elements. */
    public StatisticalHostSpc_Info[] port;
}
