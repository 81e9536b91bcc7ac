package tessaly.str.diskarray;

/**
 * A summary of an array. A capacity is in two words, in the library's own unit: high times 2^32
 * plus low, unsigned. The simulator counts blocks of 512 bytes.
 */
public class ArrayCondition {
    /** The library's own value; over the simulator the request's <code>login_request</code>. */
    public int login_kind;
    /**
     * Which fields are valid, the library's own value; over the simulator 0 where the caller is
     * refused.
     */
    public int valid_index;
    /**
     * How the login ended, the library's own code; over the simulator 0 where the caller is
     * admitted.
     */
    public int login_result;
    /** Operation rights, 9 elements: the library's own values. */
    public int[] operation_auth;
    /** Whether <code>alert</code> is valid, the library's own value. */
    public int alert_valid;
    /** Alert flags, 2 elements: the library's own values. */
    public int[] alert;
    /** Further alert flag, the library's own value. */
    public int alert_sa;
    /** Number of logical units. */
    public int lu_count;
    /** Capacity of all logical units, high word. */
    public int all_lu_capa_h;
    /** Capacity of all logical units, low word. */
    public int all_lu_capa_l;
    /** Number of drives that are not in use. */
    public int unused_drive_count;
    /** Capacity of the drives that are not in use, high word. */
    public int unused_drive_capa_h;
    /** Capacity of the drives that are not in use, low word. */
    public int unused_drive_capa_l;
    /** Number of drives. */
    public int drive_count;
    /** Capacity of all drives, high word. */
    public int all_drive_capa_h;
    /** Capacity of all drives, low word. */
    public int all_drive_capa_l;
}
