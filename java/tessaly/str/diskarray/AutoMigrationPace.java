package tessaly.str.diskarray;

/** How fast a whole array is to be copied. */
public class AutoMigrationPace {
    /** Copy speed, the library's own value. */
    public int copy_speed;
}
