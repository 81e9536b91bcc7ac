package tessaly.str.diskarray;

/** The mapping guard. */
public class MappingGuardList {
    /** 8192 bytes, one an LU. The native library copies into this array and never replaces it. */
    public byte[] lumap_guard = new byte[8192];
}
