package tessaly.str.diskarray;

/** Counters of a fibre port. No field is known. Layout assumed. */
public class StatisticalFibre_Info {}
