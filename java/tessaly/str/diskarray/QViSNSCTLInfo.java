package tessaly.str.diskarray;

/** The iSNS servers of one controller. Layout assumed. */
public class QViSNSCTLInfo {
    /** 8 elements. */
    public QViSNSPortInfo[] port;
}
