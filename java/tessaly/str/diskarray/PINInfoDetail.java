package tessaly.str.diskarray;

/** Pinned data of a logical unit, by kind. The values are the library's own. */
public class PINInfoDetail {
    /** Data of the kind "middle". */
    public int middle;
    /** Data of the kind "physical". */
    public int physical;
    /** Data whose writing is not completed. */
    public int write_uncompleted;
}
