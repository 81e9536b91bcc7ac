import java.io.File;
import java.util.ArrayList;
import java.util.List;
import tessaly.str.diskarray.CommandAll_Info;
import tessaly.str.diskarray.DiskArrayException;
import tessaly.str.diskarray.LuEx_CommandInfo;
import tessaly.str.diskarray.PerformanceAll;
import tessaly.str.diskarray.PerformanceCollectGraphInfo;
import tessaly.str.diskarray.PerformanceMngInfo;
import tessaly.str.diskarray.PerformanceOutputGraphInfoRequest;
import tessaly.str.diskarray.StatisticalController;

/** Two snapshots, what was busy between them, and a collection on disk. */
final class PerformancePage {
    private static final int BUSIEST = 5;

    private final Visit visit;
    private PerformanceAll[] before;
    private PerformanceAll[] after;

    private PerformancePage(Visit visit) {
        this.visit = visit;
    }

    static void show(Visit visit) {
        PerformancePage page = new PerformancePage(visit);
        visit.page("Performance");
        visit.step("Busiest LUs between two snapshots", page::busiest);
        visit.change("A collection of one interval", page::collection);
        visit.step("Statistics", page::statistics);
    }

    /** Commands to an LU of a controller between the snapshots. */
    private static final class Load {
        int controller;
        int lun;
        long reads;
        long writes;
        long time;
    }

    private void busiest() throws DiskArrayException {
        before = Visit.ARRAY.QV_GetPerformanceAll(visit.unit, visit.session, 0);
        after = Visit.ARRAY.QV_GetPerformanceAll(visit.unit, visit.session, 0);
        List<Load> loads = new ArrayList<Load>();
        for (int controller = 0; controller < after.length; controller++) {
            for (int lun = 0; lun < after[controller].lu.length; lun++) {
                Load load = new Load();
                CommandAll_Info then = before[controller].lu[lun];
                CommandAll_Info now = after[controller].lu[lun];
                load.controller = controller;
                load.lun = lun;
                load.reads = between(then.read_count, now.read_count);
                load.writes = between(then.write_count, now.write_count);
                load.time = time(after[controller].lu_ex[lun].read_hit)
                        - time(before[controller].lu_ex[lun].read_hit);
                if (load.reads != 0 || load.writes != 0) {
                    loads.add(load);
                }
            }
        }
        loads.sort((one, other) ->
                Long.compare(other.reads + other.writes, one.reads + one.writes));
        Table table = new Table("Controller", "LU", "Reads", "Writes", "Time of read hits");
        Bars bars = new Bars("Busiest LUs", "Commands between two snapshots", "reads", "writes");
        long most = loads.isEmpty() ? 0 : loads.get(0).reads + loads.get(0).writes;
        for (Load load : loads.subList(0, Math.min(BUSIEST, loads.size()))) {
            table.row(load.controller, load.lun, load.reads, load.writes, load.time);
            bars.row("LU " + load.lun + ", controller " + load.controller,
                    load.reads + " reads, " + load.writes + " writes", most, load.reads, load.writes);
        }
        bars.addTo(visit.report);
        visit.show(table);
    }

    /** What a 32-bit counter advanced, which may have passed its largest value. */
    private static long between(int then, int now) {
        return (now - then) & 0xFFFFFFFFL;
    }

    /** Joins the two words of a counter. */
    private static long time(LuEx_CommandInfo info) {
        return ((long) info.command_total_time_h << 32)
                | (info.command_total_time_l & 0xFFFFFFFFL);
    }

    private void collection() throws DiskArrayException {
        Visit.need(before != null && after != null, "there are no snapshots");
        File file = Visit.newFile("collection", "");
        try {
            Visit.ARRAY.QV_PerformanceDataInitialize(visit.session, file.getPath(), 60, 0);
            PerformanceOutputGraphInfoRequest request = new PerformanceOutputGraphInfoRequest();
            request.preinfo0 = before[0];
            request.afterinfo0 = after[0];
            request.preinfo1 = before[1];
            request.afterinfo1 = after[1];
            PerformanceCollectGraphInfo graph =
                    Visit.ARRAY.QV_PerformanceOutputGraphInfo(visit.unit, visit.session, request);
            Visit.ARRAY.QV_PerformanceDataOutput(file.getPath(), graph);
            PerformanceMngInfo written = Visit.ARRAY.QV_PerformanceInputMngFile(file.getPath());
            visit.show(new Table("Unit", "Serial", "Interval", "LUs", "Until")
                    .row(written.unitname, written.serialno, written.intervaltime + " s",
                            written.luMaxCount,
                            String.format("%d-%02d-%02d %02d:%02d", written.totime.year,
                                    written.totime.month, written.totime.day, written.totime.hour,
                                    written.totime.minute)));
        } finally {
            file.delete();
        }
    }

    private void statistics() throws DiskArrayException {
        Table table = new Table("Controller", "Switched on", "Reset", "Running");
        StatisticalController[] controllers = Visit.ARRAY
                .QV_GetStatisticalInformation(visit.unit, visit.session, 0).controller;
        for (int number = 0; number < controllers.length; number++) {
            table.row(number, controllers[number].power_on, controllers[number].reset,
                    controllers[number].on_time + " s");
        }
        visit.show(table);
        visit.show(new Table("Setting", "Value")
                .row("counting", Visit.ARRAY.QV_GetPfmStatisCfg(visit.unit, visit.session) != 0)
                .row("files of a collection", Visit.ARRAY.QV_GetPfmFileMaxCount())
                .row("recovered media errors until a report",
                        Visit.ARRAY.QV_GetThreshold(visit.unit, visit.session).media_recover));
    }
}
