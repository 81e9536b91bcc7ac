package tessaly.str.diskarray;

/** The virtual volumes. */
public class VvolInformation {
    /** Number of volumes; the array is as long as ever. */
    public int vvol_count;
    /** Always 8,192 elements. */
    public VvolDetailInformation[] lu;
}
