package tessaly.str.diskarray;

/** What the migration has to do with each logical unit. */
public class LuMigrationState {
    public int[] lun;
}
