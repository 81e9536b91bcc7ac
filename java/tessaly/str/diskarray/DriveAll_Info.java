package tessaly.str.diskarray;

/** Commands and operating time of a drive. */
public class DriveAll_Info {
    public CommandAll_Info drive_info;
    public int valid;
    public int support;
    public int not_opr_time_h;
    public int not_opr_time_l;

    /** 60 elements. */
    public int[] tag_count;

    public int unload_time;
    public int total_tag_count_h;
    public int total_tag_count_l;
    public int total_tag_set_count_h;
    public int total_tag_set_count_l;
}
