package tessaly.str.diskarray;

/** Errors of the host ports. */
public class StatisticalHostSpc {
    public StatisticalHostSpc_Info[] port;
}
