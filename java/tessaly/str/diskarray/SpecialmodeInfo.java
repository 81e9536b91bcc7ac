package tessaly.str.diskarray;

/** A special mode and the options that it stands for. Layout assumed. */
public class SpecialmodeInfo {
    /** Special mode, the library's own value. */
    public int specialmode_id;
    /** The options that it stands for. */
    public HGOptionInfo hgoptinfo;
}
