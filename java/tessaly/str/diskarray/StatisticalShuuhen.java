package tessaly.str.diskarray;

/** Errors of the peripherals. */
public class StatisticalShuuhen {
    public int panel;
    public int rs232c;
}
