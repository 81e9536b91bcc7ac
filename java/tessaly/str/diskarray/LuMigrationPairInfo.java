package tessaly.str.diskarray;

/** The migration of a logical unit. */
public class LuMigrationPairInfo {
    public int pvol_lun;
    public int pvol_rg_num;
    public int svol_lun;
    public int svol_rg_num;
    public int copying_pace;
    public int owner_id;
    public int migration_state;
    public int percent;
    public int migration_error;
}
