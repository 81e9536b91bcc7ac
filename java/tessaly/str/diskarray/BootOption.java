package tessaly.str.diskarray;

/** Boot options. No field is known. Layout assumed. */
public class BootOption {}
