package tessaly.str.diskarray;

/** The host groups to delete. */
public class DeleteHGList {
    /** 2 elements. */
    public DeleteHGCtlList[] ctl;
}
