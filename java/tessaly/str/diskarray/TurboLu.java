package tessaly.str.diskarray;

/** Turbo LUs. */
public class TurboLu {}
