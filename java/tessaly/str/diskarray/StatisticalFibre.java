package tessaly.str.diskarray;

/** Counters of the fibre ports. Layout assumed. */
public class StatisticalFibre {
    public StatisticalFibre_Info[] Install;
    public StatisticalFibre_Info[] Pson;
}
