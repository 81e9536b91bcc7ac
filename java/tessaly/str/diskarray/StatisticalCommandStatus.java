package tessaly.str.diskarray;

/** Command statuses by LU. */
public class StatisticalCommandStatus {
    /** The LUs, 4,096 elements, whether or not they exist. */
    public StatisticalCommandStatus_Info[] lu;
}
