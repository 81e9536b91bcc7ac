package tessaly.str.diskarray;

/**
 * Commands and operating time of a drive, times in the library's own unit. A value in two words is
 * high times 2^32 plus low, unsigned.
 */
public class DriveAll_Info {
    /** Its commands. As an argument null ends the reading of the drive. Null in a new object. */
    public CommandAll_Info drive_info;
    /** Not 0 where the entry is in use. */
    public int valid;
    /** Which of the values the array supports, the library's own value. */
    public int support;
    /** Time without operation, high word. */
    public int not_opr_time_h;
    /** Time without operation, low word. */
    public int not_opr_time_l;
    /**
     * Tags, 60 elements. As an argument a shorter array throws ArrayIndexOutOfBoundsException. Null
     * in a new object.
     */
    public int[] tag_count;
    /** Time unloaded. */
    public int unload_time;
    /** Tags in total, high word. */
    public int total_tag_count_h;
    /** Tags in total, low word. */
    public int total_tag_count_l;
    /** Tags set in total, high word. */
    public int total_tag_set_count_h;
    /** Tags set in total, low word. */
    public int total_tag_set_count_l;
}
