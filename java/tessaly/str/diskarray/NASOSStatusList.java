package tessaly.str.diskarray;

/** States of the NAS operating system. No field is known. Layout assumed. */
public class NASOSStatusList {}
