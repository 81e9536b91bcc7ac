package tessaly.str.diskarray;

/** The host groups of a port to set back. Layout assumed. */
public class InitHGPortList {
    /** 64 bytes. */
    public byte[] hg = new byte[64];
}
