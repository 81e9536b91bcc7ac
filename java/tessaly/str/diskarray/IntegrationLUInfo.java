package tessaly.str.diskarray;

/** The integrated LUs. */
public class IntegrationLUInfo {
    public int integration_lu;
    /** Always 512 elements. */
    public UniteLU[] unite_info;
}
