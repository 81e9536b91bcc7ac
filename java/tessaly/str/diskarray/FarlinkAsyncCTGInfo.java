package tessaly.str.diskarray;

/** A consistency group of asynchronous pairs. */
public class FarlinkAsyncCTGInfo {
    public FarlinkAsyncCTGCTLInfo[] ctl;
}
