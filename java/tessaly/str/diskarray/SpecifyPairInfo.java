package tessaly.str.diskarray;

/** The pair that an operation names. */
public class SpecifyPairInfo {
    /** Whether a pair is given. */
    public int pair_set_flag;
    /** At most 31 bytes. */
    public String pair_name = "";
    /** The primary logical unit. */
    public int pvol_lun;
    /** The secondary logical unit. */
    public int pair_lun;
}
