package tessaly.str.diskarray;

/** What an output of all counters writes of one controller. Layout assumed. */
public class PerformanceOutputSpecifyInfo {
    /** 8 bytes. */
    public byte[] port = new byte[8];

    /** 8 bytes. */
    public byte[] backend = new byte[8];

    /** 8192 bytes. */
    public byte[] lu = new byte[8192];

    public int cache;
    public int processor;

    /** 60 rows of 30 bytes. */
    public byte[][] drive = new byte[60][30];

    /** 60 rows of 30 bytes. */
    public byte[][] drive_opr_rate = new byte[60][30];
}
