package tessaly.str.diskarray;

/** The iSNS servers of one controller. */
public class QViSNSCTLInfo {
    /** 8 elements. */
    public QViSNSPortInfo[] port;
}
