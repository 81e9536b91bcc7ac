package tessaly.str.diskarray;

/** Boot options. */
public class BootOption {}
