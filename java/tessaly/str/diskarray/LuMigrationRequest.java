package tessaly.str.diskarray;

import java.util.Arrays;

/** Migrations to start, to end or to copy at another pace. */
public class LuMigrationRequest {
    public int request_pair_count;
    public int owner_id;
    /** At most 4,095; those behind are left out. */
    public LuMigrationRequestPairInfo[] lu = new LuMigrationRequestPairInfo[4095];

    {
        Arrays.setAll(lu, index -> new LuMigrationRequestPairInfo());
    }
}
