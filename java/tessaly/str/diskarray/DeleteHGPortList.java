package tessaly.str.diskarray;

/** The host groups of a port to delete. Layout assumed. */
public class DeleteHGPortList {
    /** 64 bytes. */
    public byte[] hg = new byte[64];
}
