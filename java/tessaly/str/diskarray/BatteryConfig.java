package tessaly.str.diskarray;

/** The batteries of an array. */
public class BatteryConfig {
    /** Number of batteries. */
    public int battery_count;
}
