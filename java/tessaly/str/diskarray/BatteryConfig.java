package tessaly.str.diskarray;

/** The batteries of an array. */
public class BatteryConfig {
    public int battery_count;
}
