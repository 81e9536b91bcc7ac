package tessaly.str.diskarray;

/** Which host group options there are. */
public class HGOptionValidIndex {}
