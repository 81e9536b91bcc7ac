import java.util.ArrayList;
import java.util.List;
import tessaly.str.diskarray.AreaInfo;
import tessaly.str.diskarray.CreateRaidGroup;
import tessaly.str.diskarray.CreateRgDrive;
import tessaly.str.diskarray.DiskArrayException;
import tessaly.str.diskarray.LogicalUnit;
import tessaly.str.diskarray.LogicalUnitCreationRequest;
import tessaly.str.diskarray.LuGuard;
import tessaly.str.diskarray.PoolDetailInfo;
import tessaly.str.diskarray.QuickFormatEntryList;
import tessaly.str.diskarray.QuickFormatStatus;
import tessaly.str.diskarray.QuickFormatStatusList;
import tessaly.str.diskarray.RGAreaInformation;
import tessaly.str.diskarray.RaidGroupInformation;
import tessaly.str.diskarray.RgDetail;
import tessaly.str.diskarray.VvolDetailInformation;
import tessaly.str.diskarray.VvolInformation;

/** A RAID group, logical units in it and a virtual volume: made, formatted and shown. */
final class StoragePage {
    private static final long GIB = 1L << 21;
    private static final long[] SIZES = {500 * GIB, 3072 * GIB, 20 * GIB};
    /** The pools of the whole array, to the simulator. */
    private static final int SHARED = 2;
    private static final int FINISHED = 100;
    private static final int IN_USE = 20504;

    private final Visit visit;
    /** The new RAID group; -1 is none. */
    private int group = -1;
    private final List<Integer> made = new ArrayList<Integer>();

    private StoragePage(Visit visit) {
        this.visit = visit;
    }

    /** Returns the new logical units. */
    static List<Integer> show(Visit visit) {
        StoragePage page = new StoragePage(visit);
        visit.page("Storage");
        visit.change("A new RAID group", page::createGroup);
        visit.change("New logical units", page::createUnits);
        visit.refuse("Deleting a RAID group that holds logical units", "QV_RaidGroupDelete", IN_USE,
                "it holds logical units", page::deleteGroup);
        visit.step("RAID groups", page::groups);
        visit.step("Areas of the RAID groups", page::areas);
        visit.change("Quick format", page::format);
        visit.step("Logical units", page::units);
        visit.change("A new pool", page::createPool);
        visit.step("Pools", page::pools);
        visit.change("A new virtual volume", page::createVolume);
        visit.step("Virtual volumes", page::volumes);
        visit.step("LU guard", page::guard);
        return page.made;
    }

    private void createGroup() throws DiskArrayException {
        CreateRaidGroup request = new CreateRaidGroup();
        request.rgnum = freeGroup();
        request.level = 5;
        request.parity_hdu_count = 5;
        request.parity_count = 2;
        request.rgdrv = new CreateRgDrive[0];
        RgDetail planned =
                Visit.ARRAY.QV_GetRaidGroupCreationCapacity(visit.unit, visit.session, request);
        visit.say("planned: " + Capacity.of(planned.total_capa_h, planned.total_capa_l));
        visit.make("RAID group " + request.rgnum,
                () -> Visit.ARRAY.QV_CreateRaidGroup(visit.unit, visit.session, request),
                () -> Visit.ARRAY.QV_RaidGroupDelete(visit.unit, visit.session, request.rgnum));
        group = request.rgnum;
    }

    private List<RgDetail> detailsOfGroups() throws DiskArrayException {
        RaidGroupInformation all =
                Visit.ARRAY.QV_GetRaidGroupInformation(visit.unit, visit.session);
        List<RgDetail> used = new ArrayList<RgDetail>();
        for (RgDetail detail : all.rg) {
            if (detail.valid_index != 0) {
                used.add(detail);
            }
        }
        return used;
    }

    private int freeGroup() throws DiskArrayException {
        int number = 0;
        for (RgDetail detail : detailsOfGroups()) {
            number = Math.max(number, detail.rgnum + 1);
        }
        return number;
    }

    private void groups() throws DiskArrayException {
        Table table =
                new Table("Group", "Level", "Drives", "Smallest drive", "Capacity", "Free", "LUs");
        Bars bars = new Bars("RAID groups", "Capacity", "used", Bars.FREE);
        for (RgDetail detail : detailsOfGroups()) {
            long total = Capacity.blocks(detail.total_capa_h, detail.total_capa_l);
            long rest = Capacity.blocks(detail.rest_capa_h, detail.rest_capa_l);
            bars.capacity("Group " + detail.rgnum + ", RAID " + detail.level, total - rest, total);
            table.row(detail.rgnum, "RAID " + detail.level,
                    detail.parity_count + " x " + detail.parity_hdu_count,
                    Capacity.of(0, detail.minimum_capa), Capacity.of(total), Capacity.of(rest),
                    detail.lu_count);
        }
        visit.show(table);
        bars.addTo(visit.report);
    }

    private void createUnits() throws DiskArrayException {
        Visit.need(group >= 0, "there is no new RAID group");
        LogicalUnit[] units = Visit.ARRAY.QV_GetLogicalUnit(visit.unit, visit.session);
        int next = 0;
        for (long size : SIZES) {
            while (units[next].lu_valid != 0) {
                next++;
            }
            int number = next++;
            LogicalUnitCreationRequest request = new LogicalUnitCreationRequest();
            request.luNumber = number;
            request.rgNumber = group;
            request.lu_capacity_h = (int) (size >>> 32);
            request.lu_capacity_l = (int) size;
            request.befor_lun = new int[128];
            visit.make("logical unit " + number,
                    () -> Visit.ARRAY.QV_CreateLogicalUnit(visit.unit, visit.session, request),
                    () -> Visit.ARRAY.QV_LogicalUnitDeleteByLUN(visit.unit, visit.session, number));
            made.add(number);
        }
        Visit.ARRAY.QV_LogicalUnitChangeCtl(visit.unit, visit.session, made.get(1));
    }

    private void units() throws DiskArrayException {
        Table table = new Table("LU", "Group", "Level", "Capacity", "Controller", "Status");
        for (LogicalUnit unit : Visit.ARRAY.QV_GetLogicalUnit(visit.unit, visit.session)) {
            if (unit.lu_valid != 0) {
                table.row(unit.luNumber, unit.rgNumber, "RAID " + unit.raid_level,
                        Capacity.of(unit.capacity_h, unit.capacity_l), unit.currentCTL,
                        unit.status == 0 ? "normal" : "code " + unit.status);
            }
        }
        visit.show(table);
    }

    private void needUnits() {
        Visit.need(made.size() == SIZES.length, "there are no new logical units");
    }

    private void deleteGroup() throws DiskArrayException {
        needUnits();
        Visit.ARRAY.QV_RaidGroupDelete(visit.unit, visit.session, group);
    }

    private void areas() throws DiskArrayException {
        Table table = new Table("Group", "Area", "LU", "Capacity");
        for (RgDetail detail : detailsOfGroups()) {
            RGAreaInformation areas =
                    Visit.ARRAY.QV_GetRGAreaInformation(visit.unit, visit.session, detail.rgnum);
            for (int index = 0; index < areas.area_count; index++) {
                AreaInfo area = areas.area[index];
                table.row(detail.rgnum, index, area.lun < 0 ? "free" : area.lun,
                        Capacity.of(area.area_capa_h, area.area_capa_l));
            }
        }
        visit.show(table);
    }

    /** Enters two LUs and asks until both are finished. */
    private void format() throws DiskArrayException {
        needUnits();
        QuickFormatEntryList entries = new QuickFormatEntryList();
        entries.lu = new byte[8192];
        entries.lu[made.get(0)] = 1;
        entries.lu[made.get(1)] = 1;
        Visit.ARRAY.QV_EntryQuickFormatList(visit.unit, visit.session, entries);
        Table table = new Table("Question", "LU " + made.get(0), "LU " + made.get(1));
        boolean finished = false;
        for (int question = 1; !finished && question <= 1000; question++) {
            QuickFormatStatusList list =
                    Visit.ARRAY.QV_GetQuickFormatStatusList(visit.unit, visit.session);
            QuickFormatStatus first = list.lu[made.get(0)];
            QuickFormatStatus second = list.lu[made.get(1)];
            table.row(question, progress(first), progress(second));
            finished = first.percent >= FINISHED && second.percent >= FINISHED;
        }
        visit.show(table);
    }

    private static String progress(QuickFormatStatus status) {
        return status.waiting_number > 0
                ? "behind " + status.waiting_number : status.percent + " %";
    }

    private PoolDetailInfo[] allPools() throws DiskArrayException {
        return Visit.ARRAY.QV_GetPoolInformation(visit.unit, visit.session).sys.pool;
    }

    private void createPool() throws DiskArrayException {
        needUnits();
        PoolDetailInfo[] pools = allPools();
        int unused = 0;
        while (unused < pools.length && pools[unused].lu_count > 0) {
            unused++;
        }
        int pool = unused;
        Visit.need(pool < pools.length, "all pools are in use");
        visit.make("pool " + pool,
                () -> Visit.ARRAY.QV_PoolLUAdd(visit.unit, visit.session, SHARED, pool, made.get(0)),
                () -> Visit.ARRAY.QV_PoolLUAllDelete(visit.unit, visit.session, SHARED, pool));
    }

    private void pools() throws DiskArrayException {
        Table table = new Table("Pool", "Capacity", "Used", "Threshold", "LUs");
        Bars bars = new Bars("Pools", "Capacity", "used", Bars.FREE);
        for (PoolDetailInfo each : allPools()) {
            if (each.lu_count > 0) {
                long total = Capacity.blocks(each.allcapa_h, each.allcapa_l);
                long used = Capacity.blocks(each.usedcapa_h, each.usedcapa_l);
                bars.capacity("Pool " + each.pool_no + ", threshold " + each.threshold + " %", used, total);
                table.row(each.pool_no, Capacity.of(total), Capacity.of(used), each.threshold + " %",
                        each.lu_count);
            }
        }
        visit.show(table);
        bars.addTo(visit.report);
    }

    private void createVolume() throws DiskArrayException {
        VvolDetailInformation request = new VvolDetailInformation();
        request.lun = Visit.ARRAY.QV_GetLastLogicalUnit(visit.unit) + 1;
        request.capacity_specify = 1;
        request.capacity_h = (int) (SIZES[1] >>> 32);
        request.capacity_l = (int) SIZES[1];
        visit.make("virtual volume " + request.lun,
                () -> Visit.ARRAY.QV_CreateVVOLEx(visit.unit, visit.session, request),
                () -> Visit.ARRAY.QV_DeleteVVOL(visit.unit, visit.session, request.lun, 0));
    }

    private void volumes() throws DiskArrayException {
        VvolInformation volumes = Visit.ARRAY.QV_GetVVOLInformation(visit.unit, visit.session);
        Table table = new Table("LU", "Capacity");
        for (int index = 0; index < volumes.vvol_count; index++) {
            table.row(volumes.lu[index].lun,
                    Capacity.of(volumes.lu[index].capacity_h, volumes.lu[index].capacity_l));
        }
        visit.show(table);
    }

    private void guard() throws DiskArrayException {
        Table table = new Table("LU", "Capacity", "Access level", "Retention");
        LuGuard[] guards = Visit.ARRAY.QV_GetLuGuardInformation(visit.unit, visit.session).lu;
        for (int number = 0; number < guards.length; number++) {
            if (guards[number].lu_valid != 0) {
                table.row(number, Capacity.of(guards[number].capacity_h, guards[number].capacity_l),
                        guards[number].access_level, guards[number].retention_term);
            }
        }
        visit.show(table);
    }
}
