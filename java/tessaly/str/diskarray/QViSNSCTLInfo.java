package tessaly.str.diskarray;

/** The iSNS servers of one controller. Layout assumed. */
public class QViSNSCTLInfo {
    /**
     * Always 8 elements, one for each port. Hand over as many, none of them null. Null in a new
     * object.
     */
    public QViSNSPortInfo[] port;
}
