package tessaly.str.diskarray;

/** How many logical objects an array can hold, and how long it takes to restart. */
public class LogicalInformation {
    public int index;
    public int index2;
    public int rg_count;
    public int lu_count;
    public int rg_lu_count;
    public int perm_count;
    public int cache_part_count;
    public int ext_bitmap;
    public int hg_count;
    public int reboot_time;
    public int replace_time;
    public int crosscall_reboot_time;
    public int max_reboot_time;
    public int max_replace_time;
    public int max_crosscall_replace_time;
    public int iscsi_target_count;
    public int iscsi_initiator_count;
    public int iscsi_login_initiator_count;
    public int iscsi_chap_user_count;
    public int account_count;
    public int role_count;
    public int resource_count;
    public int reserve_lu_count;
    public int migration_pair_count;
    public int gm_pair_count;
    public int gm_mirror_count;
    public int ss_pair_count;
    public int ss_mirror_count;
    public int fl_pair_count;
    public int fle_pair_count;
    public int gmss_ctg_count;
    public int fl_ctg_count;
    public int fle_ctg_count;
    public int fle_ctg_pair_count;
    public int remote_path_count;
    public int pool_count;
    public int pool_lu_count;
    public int integrate_count;
    public int command_count;
    public int lu_mapping_count;
    public int host_lu_count;
    /** 25 elements. */
    public int[] reserved;
}
