package tessaly.str.diskarray;

/** System LUs of the NAS. */
public class NASSystemLUAll {}
