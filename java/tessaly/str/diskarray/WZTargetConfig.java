package tessaly.str.diskarray;

/**
 * How target IDs are configured, in the WZ form: 8,260 bytes of which no field is known.
 * Layout assumed.
 */
public class WZTargetConfig {}
