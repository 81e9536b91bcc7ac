package tessaly.str.diskarray;

/**
 * Numbers of an array's logical objects, and times of its restarts. The comments say what the names
 * say; whether a number is of what there is or of what there can be, whether of the array, of a
 * port or of a group, and the unit of time, are the library's own.
 */
public class LogicalInformation {
    /** Which of the fields are valid, the library's own value. */
    public int index;
    /** Which of the further fields are valid, the library's own value. */
    public int index2;
    /** RAID groups. */
    public int rg_count;
    /** Logical units. */
    public int lu_count;
    /** Logical units of RAID groups. */
    public int rg_lu_count;
    /** The library's own value. */
    public int perm_count;
    /** Cache partitions. */
    public int cache_part_count;
    /** The library's own value. */
    public int ext_bitmap;
    /** Host groups. */
    public int hg_count;
    /** Time that a restart takes. */
    public int reboot_time;
    /** Time that a replacement of the firmware takes. */
    public int replace_time;
    /** Time that a cross-call restart takes. */
    public int crosscall_reboot_time;
    /** Longest time of a restart. */
    public int max_reboot_time;
    /** Longest time of a replacement of the firmware. */
    public int max_replace_time;
    /** Longest time of a cross-call replacement. */
    public int max_crosscall_replace_time;
    /** iSCSI targets. */
    public int iscsi_target_count;
    /** iSCSI initiators. */
    public int iscsi_initiator_count;
    /** iSCSI initiators that are logged in. */
    public int iscsi_login_initiator_count;
    /** iSCSI CHAP users. */
    public int iscsi_chap_user_count;
    /** Accounts. */
    public int account_count;
    /** Roles of accounts. */
    public int role_count;
    /** The library's own value. */
    public int resource_count;
    /** Reserved logical units. */
    public int reserve_lu_count;
    /** Migration pairs. */
    public int migration_pair_count;
    /** Gemlyn pairs. */
    public int gm_pair_count;
    /** Gemlyn mirrors. */
    public int gm_mirror_count;
    /** SnapShot pairs. */
    public int ss_pair_count;
    /** SnapShot mirrors. */
    public int ss_mirror_count;
    /** Farlink pairs. */
    public int fl_pair_count;
    /** The library's own value. */
    public int fle_pair_count;
    /** Consistency groups of Gemlyn and SnapShot pairs. */
    public int gmss_ctg_count;
    /** Consistency groups of Farlink pairs. */
    public int fl_ctg_count;
    /** The library's own value. */
    public int fle_ctg_count;
    /** The library's own value. */
    public int fle_ctg_pair_count;
    /** Remote paths. */
    public int remote_path_count;
    /** Pools. */
    public int pool_count;
    /** Logical units of pools. */
    public int pool_lu_count;
    /** The library's own value. */
    public int integrate_count;
    /** The library's own value. */
    public int command_count;
    /** LU mappings. */
    public int lu_mapping_count;
    /** Logical units of hosts. */
    public int host_lu_count;
    /** 25 elements, the library's own. */
    public int[] reserved;
}
