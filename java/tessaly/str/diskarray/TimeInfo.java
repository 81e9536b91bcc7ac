package tessaly.str.diskarray;

/** The settings of an array for its time; their fields are not known. Layout assumed. */
public class TimeInfo {}
