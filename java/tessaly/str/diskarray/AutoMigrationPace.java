package tessaly.str.diskarray;

/** How fast a whole array is to be copied. */
public class AutoMigrationPace {
    public int copy_speed;
}
