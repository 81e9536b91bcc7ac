package tessaly.str.diskarray;

/** The identifier of a platform. Layout assumed. */
public class PlatFormID {}
