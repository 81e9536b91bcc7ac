package tessaly.str.diskarray;

/** A logical unit through which hosts give commands. */
public class CmdDevInfo {
    public int cmd_valid;
    public int set_valid;
    public int cmd_lu;
    public int rm_security;
}
