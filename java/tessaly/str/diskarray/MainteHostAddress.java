package tessaly.str.diskarray;

/** A host's part of an address. Layout assumed. */
public class MainteHostAddress {
    public int host_address;
}
