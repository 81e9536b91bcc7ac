package tessaly.str.diskarray;

/** The migration of a whole array to a new one. */
public class AutoMigrationInformation {
    public int state;
    public int copy_percent;
    public int delete_percent;
    public int copy_speed;
    public int migration_error;
    public int usable_status;
    public int upgrade_func_valid;
    public int upgrade_func;
}
