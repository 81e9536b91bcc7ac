package tessaly.str.diskarray;

/** How commands ended, by LU. */
public class StatisticalCommandStatus {
    /** The LUs, 4096 elements, whether or not they exist. */
    public StatisticalCommandStatus_Info[] lu;
}
