package tessaly.str.diskarray;

/** A request to attach additional units. */
public class AdditionalUnitRequest {
    /** How to attach them, the library's own value. */
    public int mode;
}
