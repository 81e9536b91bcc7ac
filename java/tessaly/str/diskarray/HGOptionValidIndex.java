package tessaly.str.diskarray;

/** Which host group options there are: 80 bytes of which no field is known. Layout assumed. */
public class HGOptionValidIndex {}
