package tessaly.str.diskarray;

/** The BIOS revisions of the NAS nodes. The name of <code>nnc_revision</code> is assumed. */
public class NNCBiosRevisionList {
    /** 4 elements. */
    public int[] mount;
    /** 4 elements. */
    public NNCBiosRevision[] nnc_revision;
}
