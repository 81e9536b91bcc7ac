package tessaly.str.diskarray;

/** Time zones. */
public class TimeZoneList {}
