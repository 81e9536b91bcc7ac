package tessaly.str.diskarray;

/** Time zones. No field is known. Layout assumed. */
public class TimeZoneList {}
