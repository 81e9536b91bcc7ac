package tessaly.str.diskarray;

import java.util.Arrays;

/** The networks of the array and of the new one. */
public class AutoMigrationAccessPath {
    /** At most 2 elements, one for each controller of the array; not null, and no element null. */
    public AutoMigrationAccessPathNetwork[] ctl = new AutoMigrationAccessPathNetwork[2];

    {
        Arrays.setAll(ctl, index -> new AutoMigrationAccessPathNetwork());
    }
    /** Mode of changing the maintenance address, the library's own value. */
    public int mainte_ip_change_mode;
    /**
     * At most 2 elements, one for each controller of the new array; not null, and no element null.
     */
    public AutoMigrationAccessPathNetwork[] newarray_ctl = new AutoMigrationAccessPathNetwork[2];

    {
        Arrays.setAll(newarray_ctl, index -> new AutoMigrationAccessPathNetwork());
    }
    /** Mode of changing the new array's maintenance address, the library's own value. */
    public int newarray_mainte_ip_change_mode;
}
