package tessaly.str.diskarray;

/** Command statuses of an LU. No field is known. */
public class StatisticalCommandStatus_Info {}
