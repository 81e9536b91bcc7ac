package tessaly.str.diskarray;

/** Which port options there are. Layout assumed. */
public class PortOptionValidIndex {}
