package tessaly.str.diskarray;

/**
 * Two controllers' snapshots before and after an interval, and what to write of them.
 *
 * <p>Layout assumed.
 */
public class PerformanceOutputAllRequest {
    public String filename = "";
    public PerformanceAll preinfo0;
    public PerformanceAll afterinfo0;
    public PerformanceAll preinfo1;
    public PerformanceAll afterinfo1;

    /** 8 bytes. */
    public byte[] port = new byte[8];

    /** 8 bytes. */
    public byte[] backend = new byte[8];

    /** 2048 bytes. */
    public byte[] lu = new byte[2048];

    public int cache;
    public int processor;

    /** 15 rows of 30 bytes. */
    public byte[][] drive = new byte[15][30];

    /** 15 rows of 30 bytes. */
    public byte[][] drive_opr_rate = new byte[15][30];

    public int count;
    public int mode;
    public int file_fmt_mode;
}
