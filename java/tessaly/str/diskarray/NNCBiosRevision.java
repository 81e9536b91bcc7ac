package tessaly.str.diskarray;

/** The revision of a NAS node's BIOS. */
public class NNCBiosRevision {
    public String nncbiosrevision;
}
