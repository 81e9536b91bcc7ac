package tessaly.str.diskarray;

/** Logical units to reserve as targets of migrations, or to release. */
public class LuMigrationReserve {
    /**
     * 8,192 elements, no fewer, one for each logical unit from 0 on. What a byte means is the
     * library's own; over the simulator it is not 0 in those that are meant. Not null.
     */
    public byte[] reserve_lu = new byte[8192];
}
