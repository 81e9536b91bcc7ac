import java.util.Set;
import java.util.TreeSet;
import tessaly.str.diskarray.ArrayCondition;
import tessaly.str.diskarray.ArrayConditionRequest;
import tessaly.str.diskarray.DiskArrayException;
import tessaly.str.diskarray.DiskDrive;
import tessaly.str.diskarray.DiskDriveInformation;
import tessaly.str.diskarray.DiskDriveInformationAll;
import tessaly.str.diskarray.DiskDriveStatusAll;
import tessaly.str.diskarray.LocateLEDInformation;
import tessaly.str.diskarray.ObstPartsInformation;
import tessaly.str.diskarray.PartsList;
import tessaly.str.diskarray.SpinDownUpInformation;
import tessaly.str.diskarray.UnitCondition;
import tessaly.str.diskarray.VendorInfo;

/** The condition of a unit, its drives and its parts. */
final class StatusPage {
    private static final int LIT = 1;

    private StatusPage() {}

    static void show(Visit visit) {
        visit.page("Status");
        visit.step("Summary", () -> summary(visit));
        Rack rack = new Rack();
        visit.step("Condition", () -> condition(visit, rack));
        visit.step("Drives", () -> drives(visit, rack));
        visit.step("Parts", () -> parts(visit));
        visit.change("Lighting a locate LED", () -> light(visit));
        visit.step("Drive settings", () -> settings(visit));
    }

    private static void summary(Visit visit) throws DiskArrayException {
        ArrayConditionRequest request = new ArrayConditionRequest();
        request.user_id = "";
        request.passwd = "";
        request.session = visit.session;
        ArrayCondition condition = Visit.ARRAY.QV_GetArrayCondition(visit.unit, request);
        visit.show(new Table("Array", "Value")
                .row("login result", condition.login_result)
                .row("logical units", condition.lu_count)
                .row("drives", condition.drive_count)
                .row("capacity", Capacity.of(condition.all_drive_capa_h, condition.all_drive_capa_l)));
    }

    private static void condition(Visit visit, Rack rack) throws DiskArrayException {
        UnitCondition condition =
                Visit.ARRAY.QV_GetUnitCondition(visit.unit, visit.session, 0);
        visit.report.facts.put("Device", condition.device_type_name);
        visit.report.facts.put("Serial", condition.serial);
        visit.report.facts.put("Microprogram", condition.micro);
        visit.say(condition.device_type_name + " with microprogram " + condition.micro + ", serial "
                + condition.serial);
        Table table = new Table("Part", "Places", "Occupied", "Conditions");
        row(table, rack, "port of controller 0", condition.ctl0_port);
        row(table, rack, "port of controller 1", condition.ctl1_port);
        row(table, rack, "battery", condition.batt);
        row(table, rack, "power supply", condition.ps);
        row(table, rack, "fan", condition.fan);
        row(table, rack, "loop", condition.loop);
        row(table, rack, "enclosure", condition.enclosure);
        visit.show(table);
        visit.report.pictures.put(Rack.TITLE, rack.markup());
    }

    /** Places without a part are 0. */
    private static void row(Table table, Rack rack, String part, int[] conditions) {
        rack.parts(part, conditions);
        int occupied = 0;
        Set<Integer> different = new TreeSet<Integer>();
        for (int condition : conditions) {
            if (condition != 0) {
                occupied++;
                different.add(condition);
            }
        }
        table.row(part, conditions.length, occupied, different);
    }

    private static void drives(Visit visit, Rack rack) throws DiskArrayException {
        DiskDriveInformationAll information =
                Visit.ARRAY.QV_GetDiskDriveInformationAll(visit.unit, visit.session);
        DiskDriveStatusAll status =
                Visit.ARRAY.QV_GetDiskDriveStatusAll(visit.unit, visit.session);
        Table table =
                new Table("Unit", "Slot", "Kind", "Product", "Capacity", "Rotation", "Serial", "State");
        int slots = 0;
        for (int unit = 0; unit < status.unit.length; unit++) {
            DiskDrive[] drives = status.unit[unit].drives;
            rack.enclosure(unit, drives, information.unit[unit].drives);
            slots += drives.length;
            for (int slot = 0; slot < drives.length; slot++) {
                if (drives[slot].mount != 0) {
                    DiskDriveInformation drive = information.unit[unit].drives[slot];
                    table.row(unit, slot, drive.drive_type_name, drive.product,
                            drive.drive_capacity, drive.drive_rotation, drive.serial,
                            drives[slot].drv_state);
                }
            }
        }
        visit.say(status.unit.length + " units, " + slots + " slots");
        visit.show(table);
        visit.report.pictures.put(Rack.TITLE, rack.markup());
    }

    private static void parts(Visit visit) throws DiskArrayException {
        PartsList parts = Visit.ARRAY.QV_GetPartsList(visit.unit, visit.session);
        Table table = new Table("Part", "Vendor", "Product", "Revision", "Serial");
        rows(table, parts.controller);
        rows(table, parts.unit);
        for (VendorInfo[] controllers : parts.enc) {
            rows(table, controllers);
        }
        visit.show(table);
        ObstPartsInformation failed =
                Visit.ARRAY.QV_GetObstPartsInformation(visit.unit, visit.session);
        visit.show(new Table("Failed part", "Value")
                .row("reported", failed.obst_report_parts_cnt)
                .row("places", failed.parts.length));
    }

    private static void rows(Table table, VendorInfo[] parts) {
        for (VendorInfo part : parts) {
            if (part.valid_index != 0) {
                table.row(part.type_name, part.vendor, part.product, part.revision, part.serial);
            }
        }
    }

    private static void light(Visit visit) throws DiskArrayException {
        LocateLEDInformation before =
                Visit.ARRAY.QV_GetLocateLEDInformation(visit.unit, visit.session);
        LocateLEDInformation leds =
                Visit.ARRAY.QV_GetLocateLEDInformation(visit.unit, visit.session);
        leds.unit[1] = LIT;
        visit.make("the light of unit 1",
                () -> Visit.ARRAY.QV_SetLocateLEDInformation(visit.unit, visit.session, leds),
                () -> Visit.ARRAY.QV_SetLocateLEDInformation(visit.unit, visit.session, before));
    }

    private static void settings(Visit visit) throws DiskArrayException {
        int lit = 0;
        for (int led : Visit.ARRAY.QV_GetLocateLEDInformation(visit.unit, visit.session).unit) {
            lit += led == LIT ? 1 : 0;
        }
        SpinDownUpInformation saving =
                Visit.ARRAY.QV_GetSpinDownUpInformation(visit.unit, visit.session);
        visit.show(new Table("Setting", "Value")
                .row("interval of restoration",
                        Visit.ARRAY.QV_GetDiskDriveRestoration(visit.unit, visit.session).interval)
                .row("locate LEDs lit", lit)
                .row("RAID groups that save power", saving.rg_count)
                .row("logical units with pinned data",
                        count(Visit.ARRAY.QV_GetPinInfo2(visit.unit, visit.session))));
    }

    private static int count(int[] flags) {
        int set = 0;
        for (int flag : flags) {
            set += flag == 0 ? 0 : 1;
        }
        return set;
    }
}
