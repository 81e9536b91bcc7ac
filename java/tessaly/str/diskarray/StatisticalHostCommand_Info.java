package tessaly.str.diskarray;

/** Host commands of an LU. No field is known. */
public class StatisticalHostCommand_Info {}
