package tessaly.str.diskarray;

/** Pinned data of a logical unit, by kind. */
public class PINInfoDetail {
    public int middle;
    public int physical;
    public int write_uncompleted;
}
