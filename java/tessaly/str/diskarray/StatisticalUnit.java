package tessaly.str.diskarray;

/** Errors of the units. */
public class StatisticalUnit {
    public int battery;
    public int upst;
    public int backup_power;
}
