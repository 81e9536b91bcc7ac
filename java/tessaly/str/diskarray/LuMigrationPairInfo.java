package tessaly.str.diskarray;

/** The migration of a logical unit. */
public class LuMigrationPairInfo {
    /** Number of the logical unit whose data moves. */
    public int pvol_lun;
    /** Number of its RAID group. */
    public int pvol_rg_num;
    /** Number of the reserved logical unit that it moves to. */
    public int svol_lun;
    /** Number of that one's RAID group. */
    public int svol_rg_num;
    /** Pace of the copying, the library's own value. */
    public int copying_pace;
    /** Owner of the migration, the library's own value. */
    public int owner_id;
    /** State of the migration, the library's own value. */
    public int migration_state;
    /** How much is copied, in percent. */
    public int percent;
    /** Error of the migration, the library's own value. */
    public int migration_error;
}
