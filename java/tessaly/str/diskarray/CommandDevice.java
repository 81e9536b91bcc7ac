package tessaly.str.diskarray;

/** The logical units through which hosts give commands. */
public class CommandDevice {
    public int mrcf_lite;
    public int mode;
    /** 2 elements. */
    public int[] valid;
    /** 2 elements. */
    public int[] lu;
    /** 2 elements. */
    public int[] security;
    /** At most 4 bytes. */
    public String sequence_no = "";
    public int cmd_count;
    /** At most 128; those behind are left out. */
    public CmdDevInfo[] cmddev;
}
