package tessaly.str.diskarray;

/** How far the parity correction of each LU is. */
public class ParityCorrectionStatusList {
    /** Always 8,192 elements, one for each LU from number 0 on. */
    public CorrectionLuStatus[] lu;
}
