package tessaly.str.diskarray;

/** The identifier of a special mode: 84 bytes of which no field is known. Layout assumed. */
public class SpecialModeID {}
