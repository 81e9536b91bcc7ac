package tessaly.str.diskarray;

/** Time zones. Layout assumed. */
public class TimeZoneList {}
