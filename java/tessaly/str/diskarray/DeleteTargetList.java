package tessaly.str.diskarray;

/** Which iSCSI targets of a port to delete. Layout assumed. */
public class DeleteTargetList {
    /**
     * At least 255 elements, of which the first 255 count, one for each target of the port, the
     * library's own values; over the simulator not 0 to delete it. Not null.
     */
    public int[] target = new int[255];
}
