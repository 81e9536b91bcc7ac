package tessaly.str.diskarray;

/** The settings of an array for its time; their fields are not known. */
public class TimeInfo {}
