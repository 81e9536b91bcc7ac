package tessaly.str.diskarray;

/** A command device. */
public class CmdDevInfo {
    /** Whether the command device is valid, the library's own value. */
    public int cmd_valid;
    /** Whether the entry is set, the library's own value. */
    public int set_valid;
    /** Number of the logical unit. */
    public int cmd_lu;
    /** Security of the device, the library's own value. */
    public int rm_security;
}
