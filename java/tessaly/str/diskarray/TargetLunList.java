package tessaly.str.diskarray;

/** The LUs of a target ID. Layout assumed. */
public class TargetLunList {}
