package tessaly.str.diskarray;

/** How commands ended, by LU. */
public class StatisticalCommandStatus {
    public StatisticalCommandStatus_Info[] lu;
}
