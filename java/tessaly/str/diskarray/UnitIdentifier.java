package tessaly.str.diskarray;

/** How an array identifies itself. Layout assumed. */
public class UnitIdentifier {
    /** At most 4 bytes. */
    public String equipment_id = "";
    /** 2 elements. */
    public ControllerInfo[] ctl;
}
