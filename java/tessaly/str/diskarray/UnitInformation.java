package tessaly.str.diskarray;

/** What kind of array a unit is, and how much of everything it can hold. */
public class UnitInformation {
    public BaseInformation b_info;
    public LogicalInformation l_info;
    public PhysicalInformation p_info;
}
