package tessaly.str.diskarray;

/** Counter differences, computed for a graph. Layout assumed. */
public class PerformanceCollectGraph {
    public QVTime[] mtime;
    public PerformanceCollectGraphPort[] port;
    public PerformanceCollectGraphLU[] lu;
    public PerformanceCollectGraphCache cache;
    public PerformanceCollectGraphBackend[] backend;

    /** 60 rows of 30. */
    public PerformanceCollectGraphDrive[][] drive;

    public PerformanceCollectGraphProcessor processor;

    /** 60 rows of 30. */
    public PerformanceCollectGraphDriveOpr[][] driveopr;

    public PerformanceCollectGraphRG[] rg;
    public PerformanceCollectGraphCache2 cache2;
    public PerformanceCollectGraphLUEx[] luex;
    public PerformanceCollectGraphCachePartition[] cachepartition;
    public PerformanceCollectGraphVUPort[] vu_port;
    public PerformanceCollectGraphVULU[] vu_lu;
}
