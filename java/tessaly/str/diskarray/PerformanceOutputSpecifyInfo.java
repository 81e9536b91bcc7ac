package tessaly.str.diskarray;

/** What an output of all counters writes of one controller. */
public class PerformanceOutputSpecifyInfo {
    /** 8 bytes. */
    public byte[] port;

    /** 8 bytes. */
    public byte[] backend;

    /** 8192 bytes. */
    public byte[] lu;

    public int cache;
    public int processor;

    /** 60 rows of 30 bytes. */
    public byte[][] drive;

    /** 60 rows of 30 bytes. */
    public byte[][] drive_opr_rate;
}
