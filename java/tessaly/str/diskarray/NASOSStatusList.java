package tessaly.str.diskarray;

/** States of the NAS operating system. Layout assumed. */
public class NASOSStatusList {}
