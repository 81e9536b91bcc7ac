package tessaly.str.diskarray;

/** States of the NAS operating system. */
public class NASOSStatusList {}
