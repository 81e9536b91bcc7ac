package tessaly.str.diskarray;

/** User LUs of the NAS. Layout assumed. */
public class NASUserLUAll {}
