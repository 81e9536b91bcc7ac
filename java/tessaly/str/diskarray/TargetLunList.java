package tessaly.str.diskarray;

/** The LUs of a target ID: 512 bytes of which no field is known. Layout assumed. */
public class TargetLunList {}
