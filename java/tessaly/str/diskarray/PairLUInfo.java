package tessaly.str.diskarray;

/** A primary logical unit and its pairs. */
public class PairLUInfo {
    public int lun;
    public int capacity;
    public int capacity_h;
    public int capacity_l;
    public int pool_usedcapa_h;
    public int pool_usedcapa_l;
    public int pool_usedrate;
    public int mirror_count;
    public MirrorLUInfo[] m_info;
}
