package tessaly.str.diskarray;

/** Logical units to reserve as targets of migrations. */
public class LuMigrationReserve {
    /** 8,192 elements, one for each logical unit. */
    public byte[] reserve_lu = new byte[8192];
}
