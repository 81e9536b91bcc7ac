import java.util.Locale;
import tessaly.str.diskarray.ArrayAllInformation;
import tessaly.str.diskarray.DiskArrayException;
import tessaly.str.diskarray.DiskDrive;
import tessaly.str.diskarray.HGCtlInfo;
import tessaly.str.diskarray.HGInfo;
import tessaly.str.diskarray.HGPortInfo;
import tessaly.str.diskarray.LogicalUnit;
import tessaly.str.diskarray.PairLUInfo;
import tessaly.str.diskarray.QVAccountBaseInfo;
import tessaly.str.diskarray.RgDetail;

/** The whole array from one call, as a summary. */
final class WholeArrayPage {
    private WholeArrayPage() {}

    static void show(Visit visit) {
        Visit.step("The whole array in one call", () -> summary(visit));
    }

    private static void summary(Visit visit) throws DiskArrayException {
        long start = System.nanoTime();
        ArrayAllInformation all =
                Visit.ARRAY.QV_GetAllInformationLite(visit.unit, visit.session);
        double seconds = (System.nanoTime() - start) / 1e9;

        int mounted = 0;
        for (DiskDrive drive : all.drive_status) {
            mounted += drive.mount != 0 ? 1 : 0;
        }
        int raidGroups = 0;
        for (RgDetail group : all.raid_info.rg) {
            raidGroups += group.valid_index != 0 ? 1 : 0;
        }
        int logicalUnits = 0;
        for (LogicalUnit unit : all.lu) {
            logicalUnits += unit.lu_valid != 0 ? 1 : 0;
        }
        int hostGroups = 0;
        for (HGCtlInfo controller : all.hg.ctl) {
            for (HGPortInfo port : controller.port) {
                for (HGInfo group : port.hg) {
                    hostGroups += group.valid != 0 ? 1 : 0;
                }
            }
        }
        int mirrors = 0;
        for (PairLUInfo pair : all.pair_info.lu) {
            mirrors += pair.mirror_count;
        }
        int accounts = 0;
        for (QVAccountBaseInfo account : all.account.account_info) {
            accounts += account.user_id.isEmpty() ? 0 : 1;
        }
        new Table("What", "How many")
                .row("controllers", all.unit_conditions[0].ctl_num)
                .row("drives mounted, of the first " + all.drive_status.length, mounted)
                .row("RAID groups", raidGroups)
                .row("logical units, of the first " + all.lu.length, logicalUnits)
                .row("pools in use", all.pool_info.sys.pool_enable_count)
                .row("host groups", hostGroups)
                .row("mirrors of copy pairs", mirrors)
                .row("accounts", accounts)
                .row("last logical unit", all.last_lu)
                .print();
        System.out.printf(Locale.ROOT, "  microprogram %s, in %.2f seconds%n%n",
                all.unit_conditions[0].micro, seconds);
    }
}
