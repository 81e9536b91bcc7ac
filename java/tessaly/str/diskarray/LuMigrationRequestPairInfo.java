package tessaly.str.diskarray;

/** A pair of logical units of a migration. */
public class LuMigrationRequestPairInfo {
    /** Number of the logical unit whose data moves. */
    public int pvol_lun;
    /** Number of the reserved logical unit that it moves to. */
    public int svol_lun;
    /** Pace of the copying, the library's own value. */
    public int copying_pace;
}
