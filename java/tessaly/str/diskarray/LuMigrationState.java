package tessaly.str.diskarray;

/** What the migration has to do with each logical unit. */
public class LuMigrationState {
    /** 8,192 elements, the state of each logical unit from 0 on, the library's own values. */
    public int[] lun;
}
