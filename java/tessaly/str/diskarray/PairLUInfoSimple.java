package tessaly.str.diskarray;

/** Two logical units that are paired. */
public class PairLUInfoSimple {
    /** Number of the primary logical unit. */
    public int pvol_lun;
    /** Number of the secondary logical unit. */
    public int svol_lun;
}
