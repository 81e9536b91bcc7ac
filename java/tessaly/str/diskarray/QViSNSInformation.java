package tessaly.str.diskarray;

/** The iSNS servers of an array. Layout assumed. */
public class QViSNSInformation {
    /** 2 elements. */
    public QViSNSCTLInfo[] ctl;
}
