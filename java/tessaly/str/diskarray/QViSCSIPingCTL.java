package tessaly.str.diskarray;

/** The pings from the ports of one controller. Layout assumed. */
public class QViSCSIPingCTL {
    /** 8 elements. */
    public QViSCSIPingPort[] port;
}
