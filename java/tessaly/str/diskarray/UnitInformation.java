package tessaly.str.diskarray;

/** What kind of array a unit is, and how much of everything it can hold. */
public class UnitInformation {
    /** What kind of array it is. */
    public BaseInformation b_info;
    /** How many logical objects it can hold. */
    public LogicalInformation l_info;
    /** How many parts it can hold. */
    public PhysicalInformation p_info;
}
