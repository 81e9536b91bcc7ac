import java.io.BufferedReader;
import java.io.Console;
import java.io.IOException;
import java.io.InputStreamReader;
import java.nio.charset.Charset;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.nio.file.StandardOpenOption;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import tessaly.str.diskarray.DiscoverUnit;
import tessaly.str.diskarray.DiscoverUnitRequest;
import tessaly.str.diskarray.DiskArrayException;
import tessaly.str.diskarray.LoginRequest;
import tessaly.str.diskarray.LogoutOption;
import tessaly.str.diskarray.QVSessionInfo;
import tessaly.str.diskarray.QVUnitParam;

/**
 * Goes through a caller's order against the array library: registers two units, finds, lists and
 * reads them, logs in and out, and takes the units from the list again.
 */
public final class ArrayTour {
    private static final String[] HELP = {
        "usage: ArrayTour [--read-only] [--html FILE] [USER PASSWORD ADDRESS1 ADDRESS2]",
        "",
        "Goes page by page through the array at ADDRESS1; without addresses, through the simulator.",
        "  --read-only  changes nothing of the array: for one that is in use. An address that the",
        "               library has not registered is registered while the tour runs; that list is",
        "               the library's own, on this computer",
        "  --html FILE  writes what the tour found as a page for a browser",
        "  PASSWORD     - asks for it",
        "",
        "Exit status: 0 where nothing was unexpected, 1 where something was, 2 for wrong arguments.",
        "A password that is refused is tried once, and ends the tour.",
    };
    private static final int NAME_TAKEN = 20002;
    private static final int NO_SESSION = 20101;
    private static final int LOGIN_REFUSED = 20102;
    private static final int NULL_TEXT = 258;

    private final Report report = new Report();
    private final Visit visit;
    private final String user;
    private final String password;
    private final String[] names = {"tour-north", "tour-south"};
    private final String[] addresses;
    private boolean registered;

    private ArrayTour(boolean readOnly, boolean simulated, List<String> account) {
        visit = new Visit(readOnly, simulated, report);
        user = account.get(0);
        password = account.get(1);
        addresses = new String[] {account.get(2), account.get(3)};
    }

    public static void main(String[] arguments) {
        System.exit(run(arguments));
    }

    /** Returns the exit status. */
    static int run(String... arguments) {
        boolean readOnly = false;
        Path html = null;
        List<String> account = new ArrayList<String>(Arrays.asList(arguments));
        try {
            while (!account.isEmpty() && account.get(0).startsWith("--")) {
                String option = account.remove(0);
                if (option.equals("--help")) {
                    System.out.println(String.join("\n", HELP));
                    return 0;
                } else if (option.equals("--read-only")) {
                    readOnly = true;
                } else if (option.equals("--html") && !account.isEmpty()) {
                    html = Paths.get(account.remove(0));
                    // What cannot be written is told before the tour, not after it.
                    Files.newOutputStream(html, StandardOpenOption.CREATE, StandardOpenOption.WRITE).close();
                } else {
                    return refuse(option + (option.equals("--html") ? " without a file" : ": no option"));
                }
            }
            boolean simulated = account.isEmpty();
            if (simulated) {
                account = Arrays.asList("admin", "quorvel", "192.0.2.10", "192.0.2.20");
            } else if (account.size() != 4) {
                return refuse("not USER PASSWORD ADDRESS1 ADDRESS2, but " + account.size() + " arguments");
            } else if (account.get(1).equals("-")) {
                account.set(1, passwordOf(account.get(0)));
            }
            ArrayTour tour = new ArrayTour(readOnly, simulated, account);
            tour.walk();
            tour.report.summarise();
            if (html != null) {
                Html.write(tour.report, readOnly, html);
            }
            return tour.report.isAsExpected() ? 0 : 1;
        } catch (IOException | IllegalArgumentException failure) {
            return refuse(failure.toString());
        } catch (LinkageError failure) {
            System.err.println("ArrayTour: a library or class is not there: " + failure);
            return 1;
        }
    }

    private static int refuse(String why) {
        System.err.println("ArrayTour: " + why + "\n" + HELP[0]);
        return 2;
    }

    /** What is typed is not shown, unless it comes from a file. */
    private static String passwordOf(String user) throws IOException {
        Console console = System.console();
        if (console != null) {
            char[] typed = console.readPassword("Password of %s: ", user);
            return new String(typed == null ? new char[0] : typed);
        }
        String line =
                new BufferedReader(new InputStreamReader(System.in, Charset.defaultCharset())).readLine();
        if (line == null) {
            throw new IOException("no password");
        }
        return line;
    }

    private void walk() {
        try {
            report.page("Registration");
            visit.step("Discovering units", this::discover);
            visit.step("Registering two units", this::register);
            visit.refuse("Registering a unit twice", "QV_UnitAdd", NAME_TAKEN, "the name is taken",
                    () -> {
                        Visit.need(registered, "no unit was registered");
                        Visit.ARRAY.QV_UnitAdd(unit(names[0], addresses[0]));
                    });
            visit.step("Registered units", this::listUnits);
            visit.refuse("A missing unit name", "QV_GetUnitParam", NULL_TEXT, "it is null",
                    () -> Visit.ARRAY.QV_GetUnitParam(null));
            if (registered) {
                inSession();
            }
        } finally {
            visit.removeAll("Taking the units from the list");
        }
    }

    private void discover() throws DiskArrayException {
        Table table = new Table("Address", "Serial", "Device type", "Controller", "Port");
        for (String address : addresses) {
            DiscoverUnitRequest request = new DiscoverUnitRequest();
            request.ip_dev = address;
            DiscoverUnit found = Visit.ARRAY.QV_DiscoverUnitInformation(request);
            table.row(found.ip_dev, found.serial, found.device_type, found.ctlno,
                    found.communication_port);
        }
        visit.show(table);
    }

    private static QVUnitParam unit(String name, String address) {
        QVUnitParam param = new QVUnitParam();
        param.unit_name = name;
        param.group_name = "tour";
        param.ctl0 = address;
        param.ctl1 = "";
        param.serial = "";
        return param;
    }

    /** An array in use is visited under the name that it has. */
    private void register() throws DiskArrayException {
        for (int index = 0; index < names.length; index++) {
            String name = names[index];
            String address = addresses[index];
            String known = visit.readOnly ? nameOf(address) : null;
            if (known != null) {
                names[index] = known;
                visit.say(address + " is registered as " + known);
            } else {
                visit.make("unit " + name + " in the library's list",
                        () -> Visit.ARRAY.QV_UnitAddByIP(unit(name, address)),
                        () -> Visit.ARRAY.QV_UnitDelete(name));
            }
        }
        registered = true;
        visit.say(Visit.ARRAY.QV_GetUnitCount() + " units registered");
    }

    private static String nameOf(String address) throws DiskArrayException {
        for (QVUnitParam unit : Visit.ARRAY.QV_GetUnitParamTable(Visit.ARRAY.QV_GetUnitCount())) {
            if (address.equals(unit.ctl0) || address.equals(unit.ctl1)) {
                return unit.unit_name;
            }
        }
        return null;
    }

    private void listUnits() throws DiskArrayException {
        Table table = new Table("Unit", "Group", "Controller 0", "Serial", "Device type");
        for (QVUnitParam unit : Visit.ARRAY.QV_GetUnitParamTable(Visit.ARRAY.QV_GetUnitCount())) {
            table.row(unit.unit_name, unit.group_name, unit.ctl0, unit.serial, unit.device_type);
        }
        visit.show(table);
    }

    private QVSessionInfo login(String withPassword) throws DiskArrayException {
        LoginRequest request = new LoginRequest();
        request.user_id = user;
        request.passwd = withPassword;
        request.log_string = "array tour";
        return Visit.ARRAY.QV_LoginQVAccount(names[0], request);
    }

    /** Accounts lock after a few wrong passwords: a real array gets one, and that once. */
    private void inSession() {
        String unit = names[0];
        report.page("Session");
        report.facts.put("Unit", unit);
        report.facts.put("Address", addresses[0]);
        report.facts.put("User", user);
        if (visit.simulated) {
            visit.refuse("A wrong password", "QV_LoginQVAccount", LOGIN_REFUSED, "it is wrong",
                    () -> login("not " + password));
        }
        QVSessionInfo[] session = new QVSessionInfo[1];
        visit.step("Login", () -> {
            session[0] = login(password);
            visit.say("logged in to " + unit + " as " + user);
        });
        if (session[0] == null) {
            visit.say("the tour ends here: the login is tried once, since accounts lock");
            return;
        }
        Visit inside = visit.in(unit, session[0]);
        try {
            pages(inside);
        } finally {
            report.page("End");
            inside.removeAll("Removing what the tour made");
            inside.always("Logout",
                    () -> Visit.ARRAY.QV_LogoutQVAccount(unit, session[0], new LogoutOption()));
        }
        visit.refuse("A call after the logout", "QV_GetOwnUserPermission", NO_SESSION,
                "its session has ended",
                () -> Visit.ARRAY.QV_GetOwnUserPermission(unit, session[0]));
    }

    private static void pages(Visit visit) {
        AccountsPage.show(visit);
        UnitPage.show(visit);
        StatusPage.show(visit);
        HostsPage.show(visit, StoragePage.show(visit));
        PortsPage.show(visit);
        MaintenancePage.show(visit);
        ReplicationPage.show(visit);
        PerformancePage.show(visit);
        WholeArrayPage.show(visit);
    }
}
