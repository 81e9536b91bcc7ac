package tessaly.str.diskarray;

/** What kind of array a unit is, and its numbers of logical objects and parts. */
public class UnitInformation {
    /** What kind of array it is. */
    public BaseInformation b_info;
    /** Its numbers of logical objects. */
    public LogicalInformation l_info;
    /** Its numbers of parts. */
    public PhysicalInformation p_info;
}
