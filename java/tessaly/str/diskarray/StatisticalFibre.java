package tessaly.str.diskarray;

/** Counters of the fibre ports. Layout assumed. */
public class StatisticalFibre {
    /** Counters of the kind "Install", 4 ports. */
    public StatisticalFibre_Info[] Install;
    /** Counters of the kind "Pson", 4 ports. */
    public StatisticalFibre_Info[] Pson;
}
