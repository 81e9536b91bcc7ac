package tessaly.str.diskarray;

/**
 * The BIOS revisions of the network node controllers. The name of <code>nnc_revision</code>
 * is assumed.
 */
public class NNCBiosRevisionList {
    /** 4 elements: whether each network node controller is there, the library's own values. */
    public int[] mount;
    /** 4 elements, one for each network node controller. */
    public NNCBiosRevision[] nnc_revision;
}
