package tessaly.str.diskarray;

/** Host commands of an LU. */
public class StatisticalHostCommand_Info {}
