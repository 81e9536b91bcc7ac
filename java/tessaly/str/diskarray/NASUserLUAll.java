package tessaly.str.diskarray;

/** User LUs of the NAS. No field is known. Layout assumed. */
public class NASUserLUAll {}
