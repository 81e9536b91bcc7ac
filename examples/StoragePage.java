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

/** A RAID group, logical units in it and a virtual volume: made, formatted, shown and deleted. */
final class StoragePage {
    private static final long GIB = 1L << 21;
    private static final long[] SIZES = {500 * GIB, 3072 * GIB, 20 * GIB};
    /** The pools of the whole array, to the simulator. */
    private static final int SHARED = 2;
    private static final int FINISHED = 100;

    private final Visit visit;
    /** What was made here, and nothing else, is deleted again; -1 is nothing. */
    private int group = -1;
    private int pool = -1;
    private int volume = -1;
    private final List<Integer> made = new ArrayList<Integer>();

    private StoragePage(Visit visit) {
        this.visit = visit;
    }

    /** Returns the page, so that what it made can be looked at before it is deleted. */
    static StoragePage show(Visit visit) {
        StoragePage page = new StoragePage(visit);
        Visit.step("RAID groups", page::createGroup);
        if (page.group < 0) {
            return page;
        }
        Visit.step("Logical units", page::createUnits);
        if (page.made.size() == SIZES.length) {
            Visit.step("A RAID group that holds logical units", page::deleteGroup);
            Visit.step("Areas of the RAID group", page::areas);
            Visit.step("Quick format", page::format);
            Visit.step("Pool", page::pool);
            Visit.step("Virtual volume", page::volume);
            Visit.step("LU guard", page::guard);
        }
        return page;
    }

    /** Deletes what the page made. */
    void cleanUp() {
        if (group >= 0) {
            Visit.step("Free again", this::delete);
        }
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
        System.out.println(
                "  planned: " + Capacity.of(planned.total_capa_h, planned.total_capa_l) + "\n");
        Visit.ARRAY.QV_CreateRaidGroup(visit.unit, visit.session, request);
        group = request.rgnum;
        groups();
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
        for (RgDetail detail : detailsOfGroups()) {
            table.row(detail.rgnum, "RAID " + detail.level,
                    detail.parity_count + " x " + detail.parity_hdu_count,
                    Capacity.of(0, detail.minimum_capa),
                    Capacity.of(detail.total_capa_h, detail.total_capa_l),
                    Capacity.of(detail.rest_capa_h, detail.rest_capa_l), detail.lu_count);
        }
        table.print();
    }

    private void createUnits() throws DiskArrayException {
        LogicalUnit[] units = Visit.ARRAY.QV_GetLogicalUnit(visit.unit, visit.session);
        int number = -1;
        for (long size : SIZES) {
            do {
                number++;
            } while (units[number].lu_valid != 0);
            LogicalUnitCreationRequest request = new LogicalUnitCreationRequest();
            request.luNumber = number;
            request.rgNumber = group;
            request.lu_capacity_h = (int) (size >>> 32);
            request.lu_capacity_l = (int) size;
            request.befor_lun = new int[128];
            Visit.ARRAY.QV_CreateLogicalUnit(visit.unit, visit.session, request);
            made.add(number);
        }
        Visit.ARRAY.QV_LogicalUnitChangeCtl(visit.unit, visit.session, made.get(1));
        units();
        groups();
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
        table.print();
    }

    private void deleteGroup() throws DiskArrayException {
        Visit.ARRAY.QV_RaidGroupDelete(visit.unit, visit.session, group);
    }

    private void areas() throws DiskArrayException {
        RGAreaInformation areas =
                Visit.ARRAY.QV_GetRGAreaInformation(visit.unit, visit.session, group);
        Table table = new Table("Area", "LU", "Capacity");
        for (int index = 0; index < areas.area_count; index++) {
            AreaInfo area = areas.area[index];
            table.row(index, area.lun < 0 ? "free" : area.lun,
                    Capacity.of(area.area_capa_h, area.area_capa_l));
        }
        table.print();
    }

    /** Enters two LUs and asks until both are finished. */
    private void format() throws DiskArrayException {
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
        table.print();
        units();
    }

    private static String progress(QuickFormatStatus status) {
        return status.waiting_number > 0
                ? "behind " + status.waiting_number : status.percent + " %";
    }

    private void pool() throws DiskArrayException {
        PoolDetailInfo[] pools =
                Visit.ARRAY.QV_GetPoolInformation(visit.unit, visit.session).sys.pool;
        int unused = 0;
        while (unused < pools.length && pools[unused].lu_count > 0) {
            unused++;
        }
        if (unused == pools.length) {
            return;
        }
        Visit.ARRAY.QV_PoolLUAdd(visit.unit, visit.session, SHARED, unused, made.get(0));
        pool = unused;
        Table table = new Table("Pool", "Capacity", "Used", "Threshold", "LUs");
        for (PoolDetailInfo each :
                Visit.ARRAY.QV_GetPoolInformation(visit.unit, visit.session).sys.pool) {
            if (each.lu_count > 0) {
                table.row(each.pool_no, Capacity.of(each.allcapa_h, each.allcapa_l),
                        Capacity.of(each.usedcapa_h, each.usedcapa_l), each.threshold,
                        each.lu_count);
            }
        }
        table.print();
    }

    private void volume() throws DiskArrayException {
        VvolDetailInformation request = new VvolDetailInformation();
        request.lun = Visit.ARRAY.QV_GetLastLogicalUnit(visit.unit) + 1;
        request.capacity_specify = 1;
        request.capacity_h = (int) (SIZES[1] >>> 32);
        request.capacity_l = (int) SIZES[1];
        Visit.ARRAY.QV_CreateVVOLEx(visit.unit, visit.session, request);
        volume = request.lun;
        VvolInformation volumes = Visit.ARRAY.QV_GetVVOLInformation(visit.unit, visit.session);
        Table table = new Table("LU", "Capacity");
        for (int index = 0; index < volumes.vvol_count; index++) {
            table.row(volumes.lu[index].lun,
                    Capacity.of(volumes.lu[index].capacity_h, volumes.lu[index].capacity_l));
        }
        table.print();
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
        table.print();
    }

    private void delete() throws DiskArrayException {
        if (volume >= 0) {
            Visit.ARRAY.QV_DeleteVVOL(visit.unit, visit.session, volume, 0);
        }
        if (pool >= 0) {
            Visit.ARRAY.QV_PoolLUAllDelete(visit.unit, visit.session, SHARED, pool);
        }
        for (int number : made) {
            Visit.ARRAY.QV_LogicalUnitDeleteByLUN(visit.unit, visit.session, number);
        }
        groups();
        deleteGroup();
    }
}
