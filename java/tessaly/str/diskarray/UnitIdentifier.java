package tessaly.str.diskarray;

/** How an array identifies itself. Layout assumed. */
public class UnitIdentifier {
    /** Identifier of the array, at most 4 bytes. */
    public String equipment_id = "";
    /** 2 elements, one a controller. Null in a new object. */
    public ControllerInfo[] ctl;
}
