package tessaly.str.diskarray;

/** System LUs of the NAS. No field is known. Layout assumed. */
public class NASSystemLUAll {}
