package tessaly.str.diskarray;

/** Turbo LU parameters: 44 bytes of which no field is known. Layout assumed. */
public class TurboLu {}
