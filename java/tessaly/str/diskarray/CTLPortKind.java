package tessaly.str.diskarray;

/** The kind of each controller's ports. */
public class CTLPortKind {
    public int portkind_ctl0;
    public int portkind_ctl1;
}
