package tessaly.str.diskarray;

/** An operation on integrated LUs. */
public class IntegrationRequest {
    /** Operation, the library's own value. */
    public int operation;
    /** LU number of the parent. */
    public int parent_lun;
    /** LU number of a child, as the operation wants it. */
    public int child_lun;
    /** How many elements of <code>child_lu</code> are used; not compared with its length. */
    public int child_count;
    /**
     * LU numbers of the children; at least 127 elements, of which the first 127 count. Not null.
     */
    public int[] child_lu = new int[127];
}
