package tessaly.str.diskarray;

/** The integrated LUs. */
public class IntegrationLUInfo {
    /** Integrated LUs, the library's own count. */
    public int integration_lu;
    /** Always 512 elements; which LU each stands for is the library's own. */
    public UniteLU[] unite_info;
}
