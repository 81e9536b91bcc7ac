package tessaly.str.diskarray;

/** A special mode and the options that it stands for. Layout assumed. */
public class SpecialmodeInfo {
    public int specialmode_id;
    public HGOptionInfo hgoptinfo;
}
