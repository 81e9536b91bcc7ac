package tessaly.str.diskarray;

/** What a processor spent its time on. */
public class ProcessorAll_Info {
    public int valid;
    public int support;
    public int all_opr_time_h;
    public int all_opr_time_l;
    public int special_job_time_h;
    public int special_job_time_l;
    public int job_io_time_h;
    public int job_io_time_l;
    public int io_special_time_h;
    public int io_special_time_l;
    public int host_interrup_time_h;
    public int host_interrup_time_l;
    public int drive_interrup_time_h;
    public int drive_interrup_time_l;
    public int drr_interrup_time_h;
    public int drr_interrup_time_l;
    public int hostio_stop_time_h;
    public int hostio_stop_time_l;
    public int monitoring_time_h;
    public int monitoring_time_l;
}
