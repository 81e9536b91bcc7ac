package tessaly.str.diskarray;

/**
 * Counter differences, computed for a graph. Layout assumed.
 *
 * <p>As an argument hand over what {@link DiskArrayUtilityJNI#QV_PerformanceOutputGraphInfo}
 * returned. A member that is null ends the reading: it and the members behind it reach the library
 * as they lay in memory. Objects and arrays are null in a new object.
 */
public class PerformanceCollectGraph {
    /** Times, 2 elements; over the simulator when the interval began and ended. */
    public QVTime[] mtime;
    /** The ports, 8 elements. */
    public PerformanceCollectGraphPort[] port;
    /** The LUs, 8,192 elements. */
    public PerformanceCollectGraphLU[] lu;
    /** The cache. */
    public PerformanceCollectGraphCache cache;
    /** The back-end paths, 8 elements. */
    public PerformanceCollectGraphBackend[] backend;
    /** The drives by enclosure and slot, 60 rows of 30. */
    public PerformanceCollectGraphDrive[][] drive;
    /** The processor. */
    public PerformanceCollectGraphProcessor processor;
    /** The drives' operation by enclosure and slot, 60 rows of 30. */
    public PerformanceCollectGraphDriveOpr[][] driveopr;
    /** The RAID groups, 200 elements. */
    public PerformanceCollectGraphRG[] rg;
    /** The cache, further values. */
    public PerformanceCollectGraphCache2 cache2;
    /** The LUs, further values, 8,192 elements. */
    public PerformanceCollectGraphLUEx[] luex;
    /** The cache partitions, 64 elements. */
    public PerformanceCollectGraphCachePartition[] cachepartition;
    /** The paths to virtual units, 8 elements. */
    public PerformanceCollectGraphVUPort[] vu_port;
    /** The LUs of virtual units, 8,192 elements. */
    public PerformanceCollectGraphVULU[] vu_lu;
}
