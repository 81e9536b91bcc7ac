package tessaly.str.diskarray;

/**
 * A slice of what an array tells of itself: parameters of host groups, cache partitions and port
 * kinds.
 *
 * <p>Layout assumed.
 */
public class ArrayAllInfo_BaseAdditional {
    /** Which members are valid, the library's own value. */
    public int valid_index;
    /** Identifiers of host groups' parameters by controller, 2 elements. */
    public HGParameterID[] hgparamid;
    /** Parameters of host groups, second form. */
    public HGParameterList2 hgparamlist2;
    /** Cache partitions. */
    public CachePartition cache_prt;
    /** Kinds of the ports. */
    public CTLPortKind ctlportkind;
    /** The ports that LUs are assigned to. */
    public LuMappingPortAssignInfo lumap_lun;
}
