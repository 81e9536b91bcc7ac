package tessaly.str.diskarray;

/** User LUs of the NAS. */
public class NASUserLUAll {}
