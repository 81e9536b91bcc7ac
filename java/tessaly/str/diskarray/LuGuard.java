package tessaly.str.diskarray;

/** How an LU is guarded against changes. */
public class LuGuard {
    public int lu_valid;
    public int capacity;
    /** Capacity, high word. */
    public int capacity_h;
    /** Capacity, low word. */
    public int capacity_l;
    public int access_level_valid;
    public int access_level_status;
    public int access_level;
    /** S-VOL disable mode. */
    public int svol_disable;
    public int access_inhibit_mode;
    public int access_attr;
    public int changeable_attr;
    public int retention_term;
}
