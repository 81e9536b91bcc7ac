package tessaly.str.diskarray;

/**
 * The additional units of a registered one. The comments say what the names say; units of time and
 * values are the library's own.
 */
public class AdditionalUnitInformation {
    /** Time of an inquiry. */
    public int inquiry_time;
    /** Time between two polls. */
    public int polling_time;
    /** Time after which an answer is given up. */
    public int time_out;
    /** Number of additional units. */
    public int add_unit_num;
    /** Number of units that are connected. */
    public int connect_unit_num;
    /** Type of the units. */
    public int unit_type;
    /** Status of the units. */
    public int unit_status;
    /** Detail of the status. */
    public int unit_status_subcode;
}
