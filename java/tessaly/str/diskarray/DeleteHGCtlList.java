package tessaly.str.diskarray;

/** The host groups of a controller to delete. */
public class DeleteHGCtlList {
    /** 8 elements. */
    public DeleteHGPortList[] port;
}
