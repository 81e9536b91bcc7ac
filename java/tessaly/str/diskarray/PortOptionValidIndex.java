package tessaly.str.diskarray;

/** Which port options there are: 8 bytes of which no field is known. Layout assumed. */
public class PortOptionValidIndex {}
