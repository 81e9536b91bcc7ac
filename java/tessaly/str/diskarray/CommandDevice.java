package tessaly.str.diskarray;

/** The command devices of an array. */
public class CommandDevice {
    /** The library's own value. */
    public int mrcf_lite;
    /** Mode, the library's own value. */
    public int mode;
    /** 2 elements, no fewer, the library's own values. Null in a new object. */
    public int[] valid;
    /** 2 elements, no fewer, numbers of logical units. Null in a new object. */
    public int[] lu;
    /** 2 elements, no fewer, the library's own values. Null in a new object. */
    public int[] security;
    /** Sequence number, at most 4 bytes; not null. */
    public String sequence_no = "";
    /** How many elements of <code>cmddev</code> are in use. */
    public int cmd_count;
    /** 128 elements, used or not. Handed over: at most 128 elements. Null in a new object. */
    public CmdDevInfo[] cmddev;
}
