package tessaly.str.diskarray;

/** How the commands of an LU ended. No field is known. */
public class StatisticalCommandStatus_Info {}
