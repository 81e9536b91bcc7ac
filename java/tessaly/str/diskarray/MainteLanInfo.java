package tessaly.str.diskarray;

/** The maintenance LAN of an array. Layout assumed. */
public class MainteLanInfo {
    /** 2 elements, the controllers. */
    public MainteLanInfoDetail[] ctl;
    /** 4 elements, the network controllers. */
    public MainteLanInfoDetail[] nnc;
}
