package tessaly.str.diskarray;

/** The command devices of an array. */
public class CommandDevice {
    /** The library's own value. */
    public int mrcf_lite;
    /** Mode, the library's own value. */
    public int mode;
    /** 2 elements, the library's own values. To hand over: not null, and not shorter. */
    public int[] valid;
    /** 2 elements, numbers of logical units. To hand over: not null, and not shorter. */
    public int[] lu;
    /** 2 elements, the library's own values. To hand over: not null, and not shorter. */
    public int[] security;
    /** Sequence number, at most 4 bytes; not null. */
    public String sequence_no = "";
    /** How many elements of <code>cmddev</code> are in use. */
    public int cmd_count;
    /**
     * 128 elements, used or not. To hand over: not null; an element that is null or missing reaches
     * the library as it lay in memory, and those behind 128 are left out.
     */
    public CmdDevInfo[] cmddev;
}
