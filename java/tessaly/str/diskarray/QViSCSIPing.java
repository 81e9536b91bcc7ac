package tessaly.str.diskarray;

/** The pings from an array. Layout assumed. */
public class QViSCSIPing {
    /** 2 elements. */
    public QViSCSIPingCTL[] ctl;
}
