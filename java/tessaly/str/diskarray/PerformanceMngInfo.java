package tessaly.str.diskarray;

/** The content of a collection's management file. Layout assumed. */
public class PerformanceMngInfo {
    /** The library's own version text. */
    public String dampver;
    /** Name of the unit. */
    public String unitname;
    /** Revision of the microprogram. */
    public String microver;
    /** Serial number of the array. */
    public String serialno;
    /** Product type, the library's own code. */
    public int qv_type;
    /** Device type, the library's own code. */
    public int device_type;
    /** Most ports. */
    public int portMaxCount;
    /** Most RAID groups. */
    public int rgMaxCount;
    /** Most LUs. */
    public int luMaxCount;
    /** Most caches. */
    public int cacheMaxCount;
    /** Most processors. */
    public int processorMaxCount;
    /** Drives of an enclosure. */
    public int hdd_hdu_count;
    /** Enclosures. */
    public int hdd_unit_count;
    /** Most back-end paths. */
    public int backendMaxCount;
    /** Most cache partitions. */
    public int cachepartitionMaxCount;
    /** Cores of the processor. */
    public int cpucoreCount;
    /** Condition of the controllers, the library's own code. */
    public int ctlcond;
    /** Controller 0, the library's own value. */
    public int ctl0;
    /** Controller 1, the library's own value. */
    public int ctl1;
    /** Length of an interval; over the simulator the first int that the collection began with. */
    public int intervaltime;
    /** The library's own version text. */
    public String structver;
    /** Time of the first interval. */
    public PerformanceTime fromtime;
    /** Time of the last interval. */
    public PerformanceTime totime;
}
