package tessaly.str.diskarray;

/** A logical unit that is reserved as the target of a migration. */
public class LuMigrationReserveLUInfo {
    /** Number of the logical unit. */
    public int lun;
    /** State of the logical unit, the library's own value. */
    public int lu_state;
}
