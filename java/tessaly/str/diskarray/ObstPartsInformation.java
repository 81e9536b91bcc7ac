package tessaly.str.diskarray;

/** The parts that failed. */
public class ObstPartsInformation {
    public String registration_code;
    public DateTime cto_time;
    public int ctu_num;
    public int obst_report_parts_cnt;
    /** 1194 elements, of which obst_report_parts_cnt are reported. */
    public ObstPartsInfo[] parts;
}
