package tessaly.str.diskarray;

/** Which port options there are. */
public class PortOptionValidIndex {}
