import java.util.Locale;
import tessaly.str.diskarray.ArrayAllInformation;
import tessaly.str.diskarray.DiskArrayException;
import tessaly.str.diskarray.DiskDrive;
import tessaly.str.diskarray.HGCtlInfo;
import tessaly.str.diskarray.HGInfo;
import tessaly.str.diskarray.HGPortInfo;
import tessaly.str.diskarray.LogicalUnit;
import tessaly.str.diskarray.PairLUInfo;
import tessaly.str.diskarray.PoolDetailInfo;
import tessaly.str.diskarray.QVAccountBaseInfo;
import tessaly.str.diskarray.RgDetail;
import tessaly.str.diskarray.UnitCondition;

/** The whole array from one call, as a summary. */
final class WholeArrayPage {
    private WholeArrayPage() {}

    static void show(Visit visit) {
        visit.page("The whole array");
        visit.step("All of it in one call", () -> summary(visit));
    }

    private static void summary(Visit visit) throws DiskArrayException {
        long start = System.nanoTime();
        ArrayAllInformation all = Visit.ARRAY.QV_GetAllInformation(visit.unit, visit.session);
        double seconds = (System.nanoTime() - start) / 1e9;

        Table table = new Table("What", "How many", "Capacity", "Of it free");
        UnitCondition condition = all.unit_conditions[0];
        table.row("controllers, microprogram " + condition.micro, condition.ctl_num, "", "");
        drives(all, table);
        raidGroups(all, table);
        logicalUnits(all, table);
        pools(all, table);
        hostGroups(all, table);
        pairs(all, table);
        accounts(all, table);
        visit.show(table);
        visit.say(String.format(Locale.ROOT, "%s, serial number %s, in %.2f seconds",
                condition.device_type_name, condition.serial, seconds));
    }

    private static void drives(ArrayAllInformation all, Table table) {
        int mounted = 0;
        for (DiskDrive drive : all.drive_status) {
            mounted += drive.mount != 0 ? 1 : 0;
        }
        table.row("drives mounted, of the first " + all.drive_status.length, mounted, "", "");
    }

    private static void raidGroups(ArrayAllInformation all, Table table) {
        int groups = 0;
        long total = 0;
        long rest = 0;
        for (RgDetail group : all.raid_info.rg) {
            if (group.valid_index != 0) {
                groups++;
                total += Capacity.blocks(group.total_capa_h, group.total_capa_l);
                rest += Capacity.blocks(group.rest_capa_h, group.rest_capa_l);
            }
        }
        table.row("RAID groups", groups, Capacity.of(total), Capacity.of(rest));
    }

    private static void logicalUnits(ArrayAllInformation all, Table table) {
        int units = 0;
        long total = 0;
        for (LogicalUnit unit : all.lu) {
            if (unit.lu_valid != 0) {
                units++;
                total += Capacity.blocks(unit.capacity_h, unit.capacity_l);
            }
        }
        table.row("logical units, the last is " + all.last_lu, units, Capacity.of(total), "");
    }

    private static void pools(ArrayAllInformation all, Table table) {
        long total = 0;
        long used = 0;
        for (PoolDetailInfo pool : all.pool_info.sys.pool) {
            if (pool.lu_count > 0) {
                total += Capacity.blocks(pool.allcapa_h, pool.allcapa_l);
                used += Capacity.blocks(pool.usedcapa_h, pool.usedcapa_l);
            }
        }
        table.row("pools", all.pool_info.sys.pool_enable_count, Capacity.of(total),
                Capacity.of(total - used));
    }

    private static void hostGroups(ArrayAllInformation all, Table table) {
        int groups = 0;
        for (HGCtlInfo controller : all.hg.ctl) {
            for (HGPortInfo port : controller.port) {
                for (HGInfo group : port.hg) {
                    groups += group.valid != 0 ? 1 : 0;
                }
            }
        }
        table.row("host groups", groups, "", "");
    }

    private static void pairs(ArrayAllInformation all, Table table) {
        int copies = 0;
        for (PairLUInfo unit : all.pair_info.lu) {
            copies += unit.mirror_count;
        }
        table.row("copies of logical units", copies, "", "");
    }

    private static void accounts(ArrayAllInformation all, Table table) {
        int accounts = 0;
        for (QVAccountBaseInfo account : all.account.account_info) {
            accounts += account.user_id.isEmpty() ? 0 : 1;
        }
        table.row("accounts", accounts, "", "");
    }
}
