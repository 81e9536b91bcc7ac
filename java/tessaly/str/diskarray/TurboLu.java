package tessaly.str.diskarray;

/** Turbo LUs. Layout assumed. */
public class TurboLu {}
