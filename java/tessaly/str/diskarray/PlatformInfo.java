package tessaly.str.diskarray;

/** A platform of hosts. */
public class PlatformInfo {}
