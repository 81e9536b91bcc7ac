package tessaly.str.diskarray;

/** The pings from the ports of one controller. */
public class QViSCSIPingCTL {
    /** 8 elements. */
    public QViSCSIPingPort[] port;
}
