package tessaly.str.diskarray;

/** The pair that an operation names. */
public class SpecifyPairInfo {
    /** Whether a pair is given; 0 is no. */
    public int pair_set_flag;
    /** Name of the pair, at most 31 bytes; not null. */
    public String pair_name = "";
    /** Number of the primary logical unit. */
    public int pvol_lun;
    /** Number of the secondary logical unit. */
    public int pair_lun;
}
