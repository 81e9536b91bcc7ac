package tessaly.str.diskarray;

/** Errors of the ports to the drives. Layout assumed. */
public class StatisticalDriveFpc {
    /** The ports, 4 elements. */
    public StatisticalDriveFpc_Info[] port;
}
