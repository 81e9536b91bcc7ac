package tessaly.str.diskarray;

/** A platform of hosts: 16,188 bytes of which no field is known. Layout assumed. */
public class PlatformInfo {}
