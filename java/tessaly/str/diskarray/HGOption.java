package tessaly.str.diskarray;

/** The options of all host groups. Layout assumed. */
public class HGOption {
    /** Options that the array supports; not null where it is handed over. Null in a new object. */
    public HGOptionValidIndex support_index;
    /** Options that are valid; not null where it is handed over. Null in a new object. */
    public HGOptionValidIndex valid_index;
    /** Whether host groups are valid, the library's own value. */
    public int HostGroupValid;
    /**
     * Always 2 elements, one for each controller. Hand over as many, none of them null. Null in a
     * new object.
     */
    public HGOptionCtlInfo[] ctl;
}
