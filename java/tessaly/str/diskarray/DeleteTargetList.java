package tessaly.str.diskarray;

/** Which iSCSI targets of a port to delete. Layout assumed. */
public class DeleteTargetList {
    /** 255 elements, one for each target. */
    public int[] target = new int[255];
}
