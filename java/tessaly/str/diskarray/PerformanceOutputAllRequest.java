package tessaly.str.diskarray;

/**
 * Two controllers' snapshots before and after an interval, and what to write of them. What a byte
 * or an int selects is the library's own.
 *
 * <p>A selection that is null ends the reading: it and those behind it reach the library as they
 * lay in memory. One that is shorter than that of a new object throws
 * ArrayIndexOutOfBoundsException, and the library is called nevertheless. The snapshots are null in
 * a new object; one that is null reaches it as it lay in memory.
 *
 * <p>Layout assumed.
 */
public class PerformanceOutputAllRequest {
    /** Path of the file, at most 1,023 bytes. Null is an empty one. */
    public String filename = "";
    /** Snapshot of controller 0 before the interval. */
    public PerformanceAll preinfo0;
    /** Snapshot of controller 0 after the interval. */
    public PerformanceAll afterinfo0;
    /** Snapshot of controller 1 before the interval. */
    public PerformanceAll preinfo1;
    /** Snapshot of controller 1 after the interval. */
    public PerformanceAll afterinfo1;
    /** Selects ports: 8 bytes. */
    public byte[] port = new byte[8];
    /** Selects back-end paths: 8 bytes. */
    public byte[] backend = new byte[8];
    /** Selects LUs: 2,048 bytes. */
    public byte[] lu = new byte[2048];
    /** Selects the cache. */
    public int cache;
    /** Selects the processor. */
    public int processor;
    /** Selects drives by enclosure and slot: 15 rows of 30 bytes. */
    public byte[][] drive = new byte[15][30];
    /** Selects the operating rates of drives: 15 rows of 30 bytes. */
    public byte[][] drive_opr_rate = new byte[15][30];
    /** The library's own count. */
    public int count;
    /** Mode, the library's own value. */
    public int mode;
    /** Form of the file, the library's own value. */
    public int file_fmt_mode;
}
