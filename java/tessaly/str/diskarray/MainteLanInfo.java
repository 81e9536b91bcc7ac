package tessaly.str.diskarray;

/** The maintenance LAN of an array. Layout assumed. */
public class MainteLanInfo {
    /** Always 2 elements, one for each controller. */
    public MainteLanInfoDetail[] ctl;
    /** Always 4 elements, one for each network node controller. */
    public MainteLanInfoDetail[] nnc;
}
