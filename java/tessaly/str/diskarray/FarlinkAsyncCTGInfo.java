package tessaly.str.diskarray;

/** A consistency group of asynchronous Farlink pairs. */
public class FarlinkAsyncCTGInfo {
    /** 2 elements, one for each controller. */
    public FarlinkAsyncCTGCTLInfo[] ctl;
}
