package tessaly.str.diskarray;

/** The networks of the array and of the new one. */
public class AutoMigrationAccessPath {
    /** At most 2; those behind are left out. */
    public AutoMigrationAccessPathNetwork[] ctl;
    public int mainte_ip_change_mode;
    /** At most 2; those behind are left out. */
    public AutoMigrationAccessPathNetwork[] newarray_ctl;
    public int newarray_mainte_ip_change_mode;
}
