package tessaly.str.diskarray;

/** The management port numbers of an array. Layout assumed. */
public class LANPortNumber {
    /**
     * Always 2 elements, one for each controller. Hand over as many, none of them null. Null in a
     * new object.
     */
    public LANPortNumberCtl[] ctl;
    /** Logout instruction, the library's own value. */
    public int logout_instruction;
    /** Mode, the library's own value. */
    public int mode;
}
