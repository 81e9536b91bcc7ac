package tessaly.str.diskarray;

/** A logical unit to move and resize. */
public class LogicalUnitReallocationRequest {
    /** LU number. */
    public int lun;
    /** New size, in the library's own unit. */
    public int lusize;
    /** LU number that it moves to. */
    public int newlun;
}
