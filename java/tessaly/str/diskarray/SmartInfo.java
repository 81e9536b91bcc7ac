package tessaly.str.diskarray;

/** Self-diagnosis of SATA drives. */
public class SmartInfo {
    public int smart_valid;
    public int reassign_thres;
}
