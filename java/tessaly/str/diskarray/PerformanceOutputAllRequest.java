package tessaly.str.diskarray;

/** Two controllers' snapshots before and after an interval, and what to write of them. */
public class PerformanceOutputAllRequest {
    public String filename;
    public PerformanceAll preinfo0;
    public PerformanceAll afterinfo0;
    public PerformanceAll preinfo1;
    public PerformanceAll afterinfo1;

    /** 8 bytes. */
    public byte[] port;

    /** 8 bytes. */
    public byte[] backend;

    /** 2048 bytes. */
    public byte[] lu;

    public int cache;
    public int processor;

    /** 16 rows of 30 bytes. */
    public byte[][] drive;

    /** 16 rows of 30 bytes. */
    public byte[][] drive_opr_rate;

    public int count;
    public int mode;
    public int file_fmt_mode;
}
