package tessaly.str.diskarray;

/** The revision of a network node controller's BIOS. */
public class NNCBiosRevision {
    /** Revision, at most 8 bytes. */
    public String nncbiosrevision;
}
