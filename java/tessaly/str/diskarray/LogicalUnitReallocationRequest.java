package tessaly.str.diskarray;

/** A logical unit to reallocate. */
public class LogicalUnitReallocationRequest {
    /** LU number. */
    public int lun;
    /** Size, in the library's own unit. */
    public int lusize;
    /** New LU number. */
    public int newlun;
}
