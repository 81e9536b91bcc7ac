package tessaly.str.diskarray;

/** The identifier of a special mode. Layout assumed. */
public class SpecialModeID {}
