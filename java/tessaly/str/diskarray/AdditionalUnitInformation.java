package tessaly.str.diskarray;

/** The additional units of a registered one. */
public class AdditionalUnitInformation {
    public int inquiry_time;
    public int polling_time;
    public int time_out;
    public int add_unit_num;
    public int connect_unit_num;
    public int unit_type;
    public int unit_status;
    public int unit_status_subcode;
}
