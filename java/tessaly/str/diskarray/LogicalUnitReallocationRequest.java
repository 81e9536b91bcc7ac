package tessaly.str.diskarray;

/** A logical unit to move and resize. */
public class LogicalUnitReallocationRequest {
    public int lun;
    public int lusize;
    public int newlun;
}
