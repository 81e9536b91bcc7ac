package tessaly.str.diskarray;

/** Counters of a fibre port. */
public class StatisticalFibre_Info {}
