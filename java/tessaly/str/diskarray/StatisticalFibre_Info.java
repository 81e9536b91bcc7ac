package tessaly.str.diskarray;

/** Counters of a fibre port. Layout assumed. */
public class StatisticalFibre_Info {}
