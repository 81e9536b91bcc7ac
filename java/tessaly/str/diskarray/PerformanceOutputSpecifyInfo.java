package tessaly.str.diskarray;

/**
 * A selection of what an output of all counters writes. What a byte or an int selects is the
 * library's own.
 *
 * <p>A selection that is null ends the reading: it and those behind it reach the library as they
 * lay in memory. One that is shorter than that of a new object throws
 * ArrayIndexOutOfBoundsException, and the library is called nevertheless.
 *
 * <p>Layout assumed.
 */
public class PerformanceOutputSpecifyInfo {
    /** Selects ports: 8 bytes. */
    public byte[] port = new byte[8];
    /** Selects back-end paths: 8 bytes. */
    public byte[] backend = new byte[8];
    /** Selects LUs: 8,192 bytes. */
    public byte[] lu = new byte[8192];
    /** Selects the cache. */
    public int cache;
    /** Selects the processor. */
    public int processor;
    /** Selects drives by enclosure and slot: 60 rows of 30 bytes. */
    public byte[][] drive = new byte[60][30];
    /** Selects the operating rates of drives: 60 rows of 30 bytes. */
    public byte[][] drive_opr_rate = new byte[60][30];
}
