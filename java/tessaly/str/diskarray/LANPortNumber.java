package tessaly.str.diskarray;

/** The management port numbers of an array. Layout assumed. */
public class LANPortNumber {
    /** 2 elements. */
    public LANPortNumberCtl[] ctl;
    public int logout_instruction;
    public int mode;
}
