package tessaly.str.diskarray;

/** An enclosure controller. */
public class ENCStatus {
    public int status;
    public ENCRevision enc_rev;
}
