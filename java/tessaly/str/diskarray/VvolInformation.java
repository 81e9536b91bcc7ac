package tessaly.str.diskarray;

/** The virtual volumes. */
public class VvolInformation {
    /** Number of volumes; <code>lu</code> has its full length all the same. */
    public int vvol_count;
    /** Always 8,192 elements, of which the first <code>vvol_count</code> are in use. */
    public VvolDetailInformation[] lu;
}
