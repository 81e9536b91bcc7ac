package tessaly.str.diskarray;

/** A logical unit that is reserved as the target of a migration. */
public class LuMigrationReserveLUInfo {
    public int lun;
    public int lu_state;
}
