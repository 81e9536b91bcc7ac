package tessaly.str.diskarray;

/** System LUs of the NAS. Layout assumed. */
public class NASSystemLUAll {}
