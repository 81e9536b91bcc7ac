package tessaly.str.diskarray;

import java.util.Arrays;

/** Migrations to start, to end or to copy at another pace. */
public class LuMigrationRequest {
    /** How many elements of <code>lu</code> are meant; not compared with its length. */
    public int request_pair_count;
    /** Owner of the migrations, the library's own value. */
    public int owner_id;
    /**
     * At most 4,095 elements, of which <code>request_pair_count</code> are meant; not null, and no
     * element null.
     */
    public LuMigrationRequestPairInfo[] lu = new LuMigrationRequestPairInfo[4095];

    {
        Arrays.setAll(lu, index -> new LuMigrationRequestPairInfo());
    }
}
