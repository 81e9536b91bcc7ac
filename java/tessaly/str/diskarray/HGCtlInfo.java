package tessaly.str.diskarray;

/** The host groups of a controller. */
public class HGCtlInfo {
    /** Always 8 elements, one for each port. */
    public HGPortInfo[] port;
}
