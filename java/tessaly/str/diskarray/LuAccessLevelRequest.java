package tessaly.str.diskarray;

/** A new access level of an LU. */
public class LuAccessLevelRequest {
    /** LU number. */
    public int lu;
    public int access_level;
    public int retention_term;
}
