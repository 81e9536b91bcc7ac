package tessaly.str.diskarray;

/** How the commands of an LU ended. */
public class StatisticalCommandStatus_Info {}
