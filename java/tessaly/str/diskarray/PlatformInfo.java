package tessaly.str.diskarray;

/** A platform of hosts. Layout assumed. */
public class PlatformInfo {}
