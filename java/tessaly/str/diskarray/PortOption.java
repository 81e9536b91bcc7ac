package tessaly.str.diskarray;

/** The options of all ports. Layout assumed. */
public class PortOption {
    /** Options that the array supports; not null where it is handed over. Null in a new object. */
    public PortOptionValidIndex support_index;
    /** Options that are valid; not null where it is handed over. Null in a new object. */
    public PortOptionValidIndex valid_index;
    /**
     * Always 2 elements, one for each controller. Hand over as many, none of them null. Null in a
     * new object.
     */
    public PortOptionCtlInfo[] ctl;
}
