package tessaly.str.diskarray;

import java.util.Arrays;

/** The networks of the array and of the new one. */
public class AutoMigrationAccessPath {
    /** At most 2; those behind are left out. */
    public AutoMigrationAccessPathNetwork[] ctl = new AutoMigrationAccessPathNetwork[2];

    {
        Arrays.setAll(ctl, index -> new AutoMigrationAccessPathNetwork());
    }
    public int mainte_ip_change_mode;
    /** At most 2; those behind are left out. */
    public AutoMigrationAccessPathNetwork[] newarray_ctl = new AutoMigrationAccessPathNetwork[2];

    {
        Arrays.setAll(newarray_ctl, index -> new AutoMigrationAccessPathNetwork());
    }
    public int newarray_mainte_ip_change_mode;
}
