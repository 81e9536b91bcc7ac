package tessaly.str.diskarray;

/** The reserved logical units, and the migrations with their progress. */
public class LuMigrationInformation {
    /** Option, the library's own value. */
    public int option;
    /** How many elements of <code>reserve_lu</code> are in use. */
    public int reserve_lu_count;
    /** How many elements of <code>pair_lu</code> are in use. */
    public int pair_lu_count;
    /** 4,095 elements, used or not. */
    public LuMigrationReserveLUInfo[] reserve_lu;
    /** 4,095 elements, used or not. */
    public LuMigrationPairInfo[] pair_lu;
}
