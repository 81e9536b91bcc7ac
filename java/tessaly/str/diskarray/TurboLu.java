package tessaly.str.diskarray;

/** Turbo LUs: 44 bytes of which no field is known. Layout assumed. */
public class TurboLu {}
