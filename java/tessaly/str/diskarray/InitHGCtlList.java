package tessaly.str.diskarray;

/** The host groups of a controller to set back. */
public class InitHGCtlList {
    /** 8 elements. */
    public InitHGPortList[] port;
}
