package tessaly.str.diskarray;

/** Boot options. Layout assumed. */
public class BootOption {}
