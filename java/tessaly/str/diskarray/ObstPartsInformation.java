package tessaly.str.diskarray;

/** The parts that failed. */
public class ObstPartsInformation {
    /** The library's own text. */
    public String registration_code;
    /** The library's own time. */
    public DateTime cto_time;
    /** The library's own number. */
    public int ctu_num;
    /** Number of parts reported. */
    public int obst_report_parts_cnt;
    /** The parts, 1,194 elements, of which <code>obst_report_parts_cnt</code> are reported. */
    public ObstPartsInfo[] parts;
}
