package tessaly.str.diskarray;

/** Errors of the ports to the drives. Layout assumed. */
public class StatisticalDriveFpc {
    public StatisticalDriveFpc_Info[] port;
}
