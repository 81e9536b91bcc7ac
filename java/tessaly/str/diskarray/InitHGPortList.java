package tessaly.str.diskarray;

/** The host groups of a port to initialise. Layout assumed. */
public class InitHGPortList {
    /**
     * At least 64 bytes, of which the first 64 count; how they name the groups is the library's
     * own. Not null.
     */
    public byte[] hg = new byte[64];
}
