package tessaly.str.diskarray;

/** A host's part of an address. Layout assumed. */
public class MainteHostAddress {
    /** Host's part, the library's own value. */
    public int host_address;
}
