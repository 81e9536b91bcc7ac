package tessaly.str.diskarray;

/** How target IDs are configured, in the WZ form. Layout assumed. */
public class WZTargetConfig {}
