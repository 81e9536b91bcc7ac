package tessaly.str.diskarray;

/** The identifier of a special mode. */
public class SpecialModeID {}
