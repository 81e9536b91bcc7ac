package tessaly.str.diskarray;

/**
 * What a processor spent its time on, in the library's own unit. A time is in two words: high times
 * 2^32 plus low, unsigned.
 */
public class ProcessorAll_Info {
    /** Not 0 where the entry is in use. */
    public int valid;
    /** Which of the values the array supports, the library's own value. */
    public int support;
    /** All operation, high word. */
    public int all_opr_time_h;
    /** All operation, low word. */
    public int all_opr_time_l;
    /** Special jobs, high word. */
    public int special_job_time_h;
    /** Special jobs, low word. */
    public int special_job_time_l;
    /** Jobs of input and output, high word. */
    public int job_io_time_h;
    /** Jobs of input and output, low word. */
    public int job_io_time_l;
    /** Special input and output, high word. */
    public int io_special_time_h;
    /** Special input and output, low word. */
    public int io_special_time_l;
    /** Interrupts of hosts, high word. */
    public int host_interrup_time_h;
    /** Interrupts of hosts, low word. */
    public int host_interrup_time_l;
    /** Interrupts of drives, high word. */
    public int drive_interrup_time_h;
    /** Interrupts of drives, low word. */
    public int drive_interrup_time_l;
    /** Interrupts of the kind "drr", high word. */
    public int drr_interrup_time_h;
    /** Interrupts of the kind "drr", low word. */
    public int drr_interrup_time_l;
    /** Stop of the hosts' input and output, high word. */
    public int hostio_stop_time_h;
    /** Stop of the hosts' input and output, low word. */
    public int hostio_stop_time_l;
    /** Observation, high word. */
    public int monitoring_time_h;
    /** Observation, low word. */
    public int monitoring_time_l;
}
