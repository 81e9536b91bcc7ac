package tessaly.str.diskarray;

/** The mapping guard. */
public class MappingGuardList {
    /**
     * 8,192 bytes, one for each LU from number 0 on, the library's own value. The native library
     * copies into this array and never replaces it. Hand over at least as many.
     */
    public byte[] lumap_guard = new byte[8192];
}
