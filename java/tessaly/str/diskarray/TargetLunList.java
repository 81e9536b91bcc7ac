package tessaly.str.diskarray;

/** The LUs of a target ID. */
public class TargetLunList {}
