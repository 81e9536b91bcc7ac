package tessaly.str.diskarray;

/** Two logical units that are paired. */
public class PairLUInfoSimple {
    public int pvol_lun;
    public int svol_lun;
}
