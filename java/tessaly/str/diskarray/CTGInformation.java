package tessaly.str.diskarray;

/** The consistency groups of pairs inside the array, and those of remote pairs. */
public class CTGInformation {
    public CTGInfo[] gmss_info;
    public CTGInfo[] flfle_info;
}
