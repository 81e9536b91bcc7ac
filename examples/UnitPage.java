import tessaly.str.diskarray.ArrayUser;
import tessaly.str.diskarray.DiskArrayException;
import tessaly.str.diskarray.QVTime;
import tessaly.str.diskarray.UnitInformation;

/** A unit as a whole: what it is, its own users and its clock. */
final class UnitPage {
    private UnitPage() {}

    static void show(Visit visit) {
        visit.page("Unit");
        visit.step("What it is", () -> information(visit));
        visit.change("A new user of the unit's own", () -> createUser(visit));
        visit.step("The unit's own users", () -> users(visit));
        visit.change("Setting the clock to what it shows", () -> setClock(visit));
        visit.step("Clock", () -> clock(visit));
    }

    private static void information(Visit visit) throws DiskArrayException {
        Visit.ARRAY.QV_TestUnitReady(visit.unit, 0);
        Visit.ARRAY.QV_KeepSession(visit.unit, visit.session);
        UnitInformation unit = Visit.ARRAY.QV_GetUnitInformation(visit.unit, visit.session);
        visit.show(new Table("Unit", "Value")
                .row("microprogram", unit.b_info.micro)
                .row("device type", unit.b_info.device_type)
                .row("most RAID groups", unit.l_info.rg_count)
                .row("most logical units", unit.l_info.lu_count)
                .row("most enclosures", unit.p_info.unit_count)
                .row("seconds to restart", unit.l_info.reboot_time));
    }

    private static void createUser(Visit visit) throws DiskArrayException {
        ArrayUser user = new ArrayUser();
        user.user = "tour-user";
        user.passwd = "see and touch";
        visit.make("user " + user.user + " of the unit's own",
                () -> Visit.ARRAY.QV_RegistUser(visit.unit, 0, user),
                () -> Visit.ARRAY.QV_DeleteUser(visit.unit, 0, user));
        visit.make("the login of " + user.user,
                () -> Visit.ARRAY.QV_LoginQVUnit(visit.unit, 0, user),
                () -> Visit.ARRAY.QV_LogoutQVUnit(visit.unit, 0));
    }

    private static void users(Visit visit) throws DiskArrayException {
        int registered = Visit.ARRAY.QV_GetUserInformation(visit.unit, 0).num;
        String[] login = Visit.ARRAY.QV_GetLoginUser(visit.unit, 0);
        visit.show(new Table("Users", "Value")
                .row("registered", registered)
                .row("logged in", login == null ? "nobody" : login[0])
                .row("login found", Visit.ARRAY.QV_CheckLogin(visit.unit, 0) == 0 ? "no" : "yes"));
    }

    private static void setClock(Visit visit) throws DiskArrayException {
        QVTime time = Visit.ARRAY.QV_GetUnitTime(visit.unit, visit.session);
        Visit.ARRAY.QV_SetUnitTime(visit.unit, visit.session, time);
    }

    private static void clock(Visit visit) throws DiskArrayException {
        QVTime time = Visit.ARRAY.QV_GetUnitTime(visit.unit, visit.session);
        visit.say(String.format("%04d-%02d-%02d %02d:%02d:%02d", time.tm_year + 1900, time.tm_mon + 1,
                time.tm_mday, time.tm_hour, time.tm_min, time.tm_sec));
    }
}
