package tessaly.str.diskarray;

/** The BIOS revisions of the NAS nodes. The name of <code>nnc_revision</code> is assumed. */
public class NNCBiosRevisionList {
    /** 4 elements: whether each node is there, the library's own values. */
    public int[] mount;
    /** 4 elements, one a node. */
    public NNCBiosRevision[] nnc_revision;
}
