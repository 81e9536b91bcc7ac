package tessaly.str.diskarray;

/** The identifier of a platform. */
public class PlatFormID {}
