package tessaly.str.diskarray;

/**
 * A slice of what an array tells of itself: parameters of host groups, cache partitions and port
 * kinds.
 *
 * <p>Layout assumed.
 */
public class ArrayAllInfo_BaseAdditional {
    public int valid_index;
    public HGParameterID[] hgparamid;
    public HGParameterList2 hgparamlist2;
    public CachePartition cache_prt;
    public CTLPortKind ctlportkind;
    public LuMappingPortAssignInfo lumap_lun;
}
