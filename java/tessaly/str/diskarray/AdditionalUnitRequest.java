package tessaly.str.diskarray;

/** A request to attach additional units. */
public class AdditionalUnitRequest {
    public int mode;
}
