package tessaly.str.diskarray;

/** A pair of logical units of a migration. */
public class LuMigrationRequestPairInfo {
    public int pvol_lun;
    public int svol_lun;
    public int copying_pace;
}
