package tessaly.str.diskarray;

/** LUs to integrate or to separate. */
public class IntegrationRequest {
    public int operation;
    public int parent_lun;
    public int child_lun;
    /** How many elements of <code>child_lu</code> are used. */
    public int child_count;
    /** LU numbers; at least 127 elements, of which the first 127 count. */
    public int[] child_lu = new int[127];
}
