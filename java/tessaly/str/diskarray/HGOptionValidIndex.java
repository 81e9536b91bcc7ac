package tessaly.str.diskarray;

/** Which host group options there are. Layout assumed. */
public class HGOptionValidIndex {}
