package tessaly.str.diskarray;

/** Counters of the fibre ports. */
public class StatisticalFibre {
    public StatisticalFibre_Info[] Install;
    public StatisticalFibre_Info[] Pson;
}
