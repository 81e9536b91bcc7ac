package tessaly.str.diskarray;

/** The host groups to set back. */
public class InitHGList {
    /** 2 elements. */
    public InitHGCtlList[] ctl;
}
