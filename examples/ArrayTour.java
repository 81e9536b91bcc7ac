import tessaly.str.diskarray.DiscoverUnit;
import tessaly.str.diskarray.DiscoverUnitRequest;
import tessaly.str.diskarray.DiskArrayException;
import tessaly.str.diskarray.DiskArrayUtilityJNI;
import tessaly.str.diskarray.LoginRequest;
import tessaly.str.diskarray.LogoutOption;
import tessaly.str.diskarray.QVSessionInfo;
import tessaly.str.diskarray.QVUnitParam;

/**
 * Goes through a caller's order against the array library: registers two units, finds, lists and
 * reads them, logs in and out, and takes the units from the list again.
 *
 * <p>Arguments: user, password and the addresses of two units; without them, those of the simulator.
 */
public final class ArrayTour {
    private static final DiskArrayUtilityJNI ARRAY = Visit.ARRAY;

    private final String user;
    private final String password;
    private final String[] names = {"tour-north", "tour-south"};
    private final String[] addresses;
    /** Whether logical units may be overwritten: they are nobody's. */
    private final boolean simulated;

    private ArrayTour(
            boolean simulated, String user, String password, String first, String second) {
        this.simulated = simulated;
        this.user = user;
        this.password = password;
        this.addresses = new String[] {first, second};
    }

    public static void main(String[] arguments) {
        if (arguments.length != 0 && arguments.length != 4) {
            System.err.println("usage: ArrayTour [USER PASSWORD ADDRESS1 ADDRESS2]");
            System.exit(2);
        }
        ArrayTour tour = arguments.length == 4
                ? new ArrayTour(false, arguments[0], arguments[1], arguments[2], arguments[3])
                : new ArrayTour(true, "admin", "quorvel", "192.0.2.10", "192.0.2.20");
        tour.run();
    }

    private void run() {
        Visit.step("Discovering units", this::discover);
        Visit.step("Registering two units", this::register);
        Visit.step("Registering a unit twice", () -> ARRAY.QV_UnitAdd(unit(names[0], addresses[0])));
        Visit.step("Registered units", this::listUnits);
        Visit.step("A wrong password", () -> login(names[0], "not " + password));
        Visit.step("Inside a session", this::visit);
        Visit.step("A missing unit name", () -> ARRAY.QV_GetUnitParam(null));
        Visit.step("Deleting the units", this::delete);
    }

    private void discover() throws DiskArrayException {
        Table table = new Table("Address", "Serial", "Device type", "Controller", "Port");
        for (String address : addresses) {
            DiscoverUnitRequest request = new DiscoverUnitRequest();
            request.ip_dev = address;
            DiscoverUnit found = ARRAY.QV_DiscoverUnitInformation(request);
            table.row(found.ip_dev, found.serial, found.device_type, found.ctlno,
                    found.communication_port);
        }
        table.print();
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

    private void register() throws DiskArrayException {
        for (int index = 0; index < names.length; index++) {
            ARRAY.QV_UnitAddByIP(unit(names[index], addresses[index]));
        }
        System.out.println("  " + ARRAY.QV_GetUnitCount() + " units registered\n");
    }

    private void listUnits() throws DiskArrayException {
        Table table = new Table("Unit", "Group", "Controller 0", "Serial", "Device type");
        for (QVUnitParam unit : ARRAY.QV_GetUnitParamTable(ARRAY.QV_GetUnitCount())) {
            table.row(unit.unit_name, unit.group_name, unit.ctl0, unit.serial, unit.device_type);
        }
        table.print();
    }

    private QVSessionInfo login(String unit, String withPassword) throws DiskArrayException {
        LoginRequest request = new LoginRequest();
        request.user_id = user;
        request.passwd = withPassword;
        request.log_string = "array tour";
        return ARRAY.QV_LoginQVAccount(unit, request);
    }

    private void visit() throws DiskArrayException {
        String unit = names[0];
        QVSessionInfo session = login(unit, password);
        System.out.println("  logged in to " + unit + " as " + user + "\n");
        try {
            pages(new Visit(unit, session));
        } finally {
            ARRAY.QV_LogoutQVAccount(unit, session, new LogoutOption());
        }
        Visit.step("After the logout", () -> ARRAY.QV_GetOwnUserPermission(unit, session));
    }

    private void pages(Visit visit) throws DiskArrayException {
        AccountsPage.show(visit);
        UnitPage.show(visit);
        StatusPage.show(visit);
        StoragePage storage = StoragePage.show(visit);
        try {
            HostsPage.show(visit);
            PortsPage.show(visit);
            MaintenancePage.show(visit);
            if (simulated) {
                ReplicationPage.show(visit);
            }
            PerformancePage.show(visit);
            WholeArrayPage.show(visit);
        } finally {
            storage.cleanUp();
        }
    }

    private void delete() throws DiskArrayException {
        for (String name : names) {
            ARRAY.QV_UnitDelete(name);
        }
        System.out.println("  " + ARRAY.QV_GetUnitCount() + " units registered\n");
    }
}
