package tessaly.str.diskarray;

/** The content of a collection's management file. Layout assumed. */
public class PerformanceMngInfo {
    public String dampver;
    public String unitname;
    public String microver;
    public String serialno;
    public int qv_type;
    public int device_type;
    public int portMaxCount;
    public int rgMaxCount;
    public int luMaxCount;
    public int cacheMaxCount;
    public int processorMaxCount;
    public int hdd_hdu_count;
    public int hdd_unit_count;
    public int backendMaxCount;
    public int cachepartitionMaxCount;
    public int cpucoreCount;
    public int ctlcond;
    public int ctl0;
    public int ctl1;
    public int intervaltime;
    public String structver;
    public PerformanceTime fromtime;
    public PerformanceTime totime;
}
