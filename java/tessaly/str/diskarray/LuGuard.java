package tessaly.str.diskarray;

/** The guard of an LU. */
public class LuGuard {
    /** Not 0 where the entry is in use. */
    public int lu_valid;
    /** Capacity in one word, in the library's own unit; the two words have all of it. */
    public int capacity;
    /** Capacity in blocks of 512 bytes, high word. */
    public int capacity_h;
    /** Capacity, low word. */
    public int capacity_l;
    /** Not 0 where <code>access_level</code> is valid. */
    public int access_level_valid;
    /** Status of the access level, the library's own value. */
    public int access_level_status;
    /** Access level, the library's own value. */
    public int access_level;
    /** S-VOL disable mode, the library's own value. */
    public int svol_disable;
    /** Access inhibit mode, the library's own value. */
    public int access_inhibit_mode;
    /** Access attribute, the library's own value. */
    public int access_attr;
    /** Which attributes can be changed, the library's own value. */
    public int changeable_attr;
    /** Retention term, in the library's own unit. */
    public int retention_term;
}
