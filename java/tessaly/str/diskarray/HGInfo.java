package tessaly.str.diskarray;

/** A host group of a port. */
public class HGInfo {
    /** 0 to 255. */
    public int valid;
    /** At most 32 characters. */
    public String hgname = "";
}
