package tessaly.str.diskarray;

/** A new access level of an LU. */
public class LuAccessLevelRequest {
    /** LU number. */
    public int lu;
    /** New access level, the library's own value. */
    public int access_level;
    /** Retention term, in the library's own unit. */
    public int retention_term;
}
