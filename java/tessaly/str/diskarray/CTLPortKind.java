package tessaly.str.diskarray;

/** The kind of each controller's ports. The values are the library's own. */
public class CTLPortKind {
    /** Kind of the ports of controller 0. */
    public int portkind_ctl0;
    /** Kind of the ports of controller 1. */
    public int portkind_ctl1;
}
