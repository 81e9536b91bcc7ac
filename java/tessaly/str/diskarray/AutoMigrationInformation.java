package tessaly.str.diskarray;

/** The migration of a whole array to a new one. */
public class AutoMigrationInformation {
    /** State of the migration, the library's own value. */
    public int state;
    /** How much is copied, in percent. */
    public int copy_percent;
    /** How much is deleted, in percent. */
    public int delete_percent;
    /** Copy speed, the library's own value. */
    public int copy_speed;
    /** Error of the migration, the library's own value. */
    public int migration_error;
    /** Usable status, the library's own value. */
    public int usable_status;
    /** Whether <code>upgrade_func</code> is valid, the library's own value. */
    public int upgrade_func_valid;
    /** Upgrade function, the library's own value. */
    public int upgrade_func;
}
