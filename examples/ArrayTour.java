import tessaly.str.diskarray.Account;
import tessaly.str.diskarray.AccountBanner;
import tessaly.str.diskarray.AccountIdentifier;
import tessaly.str.diskarray.AccountOption;
import tessaly.str.diskarray.DiscoverUnit;
import tessaly.str.diskarray.DiscoverUnitRequest;
import tessaly.str.diskarray.DiskArrayException;
import tessaly.str.diskarray.DiskArrayUtilityJNI;
import tessaly.str.diskarray.LoginRequest;
import tessaly.str.diskarray.LogoutOption;
import tessaly.str.diskarray.OwnUserPermission;
import tessaly.str.diskarray.QVAccountBaseInfo;
import tessaly.str.diskarray.QVAccountRoleInformation;
import tessaly.str.diskarray.QVSessionInfo;
import tessaly.str.diskarray.QVUnitParam;

/**
 * Goes through a caller's order against the array library: registers two units, finds, lists and
 * reads them, logs in and out, and takes the units from the list again.
 *
 * <p>Arguments: user, password and the addresses of two units; without them, those of the simulator.
 */
public final class ArrayTour {
    private static final DiskArrayUtilityJNI ARRAY = new DiskArrayUtilityJNI();

    /** A step of the tour that may be refused. */
    private interface Step {
        void run() throws DiskArrayException;
    }

    private final String user;
    private final String password;
    private final String[] names = {"tour-north", "tour-south"};
    private final String[] addresses;

    private ArrayTour(String user, String password, String first, String second) {
        this.user = user;
        this.password = password;
        this.addresses = new String[] {first, second};
    }

    public static void main(String[] arguments) {
        ArrayTour tour = arguments.length == 4
                ? new ArrayTour(arguments[0], arguments[1], arguments[2], arguments[3])
                : new ArrayTour("admin", "quorvel", "192.0.2.10", "192.0.2.20");
        tour.run();
    }

    private void run() {
        step("Discovering units", this::discover);
        step("Registering two units", this::register);
        step("Registering a unit twice", () -> ARRAY.QV_UnitAdd(unit(names[0], addresses[0])));
        step("Registered units", this::listUnits);
        step("A wrong password", () -> login(names[0], "not " + password));
        step("Inside a session", this::visit);
        step("A missing unit name", () -> ARRAY.QV_GetUnitParam(null));
        step("Deleting the units", this::delete);
    }

    /** Runs a step under its heading; a refusal is shown with its code and the tour goes on. */
    private static void step(String heading, Step step) {
        System.out.println(heading);
        try {
            step.run();
        } catch (DiskArrayException refused) {
            System.out.println("  refused with code " + refused.getCode() + "\n");
        }
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
        step("Accounts", () -> accounts(unit, session));
        step("Settings", () -> settings(unit, session));
        ARRAY.QV_LogoutQVAccount(unit, session, new LogoutOption());
        step("After the logout", () -> ARRAY.QV_GetOwnUserPermission(unit, session));
    }

    private void accounts(String unit, QVSessionInfo session) throws DiskArrayException {
        Account viewer = new Account();
        viewer.user_id = "tour-viewer";
        viewer.set_passwd = 1;
        viewer.passwd = "see but not touch";
        viewer.role = 3;
        viewer.account_enable = 1;
        ARRAY.QV_CreateAccount(unit, session, viewer);
        QVAccountRoleInformation roles = ARRAY.QV_GetQVAccountRoleInformation(unit, session);
        Table table = new Table("Account", "Role", "Enabled");
        for (QVAccountBaseInfo account :
                ARRAY.QV_GetAccountInformation(unit, session).account_info) {
            if (!account.user_id.isEmpty()) {
                table.row(account.user_id, roles.role_info[account.role].role_name,
                        account.account_enable == 0 ? "no" : "yes");
            }
        }
        table.print();
        AccountIdentifier identifier = new AccountIdentifier();
        identifier.user_id = viewer.user_id;
        ARRAY.QV_DeleteAccount(unit, session, identifier);
    }

    private void settings(String unit, QVSessionInfo session) throws DiskArrayException {
        AccountBanner banner = new AccountBanner();
        banner.warning_banner_display = 1;
        banner.warning_banner = "Authorised users only.";
        ARRAY.QV_SetAccountBannerAuth(unit, session, banner);
        OwnUserPermission permission = ARRAY.QV_GetOwnUserPermission(unit, session);
        AccountOption option = ARRAY.QV_GetAccountOption(unit, session);
        new Table("Setting", "Value")
                .row("banner", ARRAY.QV_GetAccountBanner(unit).warning_banner)
                .row("own role", permission.role)
                .row("operations allowed", permission.operation_auth.length)
                .row("shortest password", option.option_info.password_min_length)
                .row("session timeout", option.option_info.session_timeout)
                .row("additional units",
                        ARRAY.QV_GetAdditionalUnitInformation(unit, session).add_unit_num)
                .print();
    }

    private void delete() throws DiskArrayException {
        for (String name : names) {
            ARRAY.QV_UnitDelete(name);
        }
        System.out.println("  " + ARRAY.QV_GetUnitCount() + " units registered\n");
    }
}
