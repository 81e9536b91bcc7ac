import java.io.ByteArrayInputStream;
import java.io.ByteArrayOutputStream;
import java.io.InputStream;
import java.io.PrintStream;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.Map;
import java.util.TreeMap;
import javax.xml.parsers.DocumentBuilderFactory;
import tessaly.str.diskarray.Account;
import tessaly.str.diskarray.CreateRaidGroup;
import tessaly.str.diskarray.CreateRgDrive;
import tessaly.str.diskarray.DiskArrayUtilityJNI;
import tessaly.str.diskarray.DiskDrive;
import tessaly.str.diskarray.DiskDriveInformation;
import tessaly.str.diskarray.LoginRequest;
import tessaly.str.diskarray.LogicalUnit;
import tessaly.str.diskarray.LogicalUnitCreationRequest;
import tessaly.str.diskarray.QVAccountBaseInfo;
import tessaly.str.diskarray.QVSessionInfo;
import tessaly.str.diskarray.QVUnitParam;
import tessaly.str.diskarray.RgDetail;

/**
 * What the array tour does where something goes wrong, and what it leaves alone. Usage: TourTest
 * DIRECTORY.
 */
public final class TourTest {
    private static final DiskArrayUtilityJNI ARRAY = new DiskArrayUtilityJNI();
    private static final String[] ACCOUNT = {"admin", "quorvel", "192.0.2.10", "192.0.2.20"};
    /**
     * Whatever else a function is named may change an array. The last are those by which the simulator
     * answers QV_GetAllInformation.
     */
    private static final String READING = "QV_(Get|Discover|Check).*|QV_(Login|Logout)QVAccount"
            + "|QV_KeepSession|QV_TestUnitReady|QV_AlertCheck(Ex)?|QV_IntegrationLUInfo2?";
    private static final int REFUSED = 1234;
    /** The result of a library function by which the method returns null. */
    private static final int NULL = 256;

    private final Path page;
    private final List<String> failures = new ArrayList<>();
    private String printed;
    private int status;

    private TourTest(Path directory) throws Exception {
        page = Files.createDirectories(directory).resolve("tour.html");
    }

    public static void main(String[] arguments) throws Exception {
        TourTest test = new TourTest(Paths.get(arguments[0]));
        test.testArguments();
        test.testWrongPassword();
        test.testWrongCode();
        test.testWrongAddress();
        test.testTakenName();
        test.testReadOnly();
        test.testFailures();
        test.testRack();
        test.failures.forEach(failure -> System.out.println("FAILED: " + failure));
        System.exit(test.failures.isEmpty() ? 0 : 1);
    }

    private void expect(boolean holds, String what) {
        if (!holds) {
            failures.add(what + "\n" + printed);
        }
    }

    private void expectPrinted(String... texts) {
        for (String text : texts) {
            expect(printed.contains(text), "not printed: " + text);
        }
    }

    /** Runs the tour; where it first prints the text, there is an Error. */
    private void tour(String fatal, String... arguments) throws Exception {
        PrintStream out = System.out;
        PrintStream err = System.err;
        ByteArrayOutputStream bytes = new ByteArrayOutputStream();
        PrintStream caught = new PrintStream(bytes, true, "UTF-8") {
            private boolean thrown;

            @Override
            public void println(String line) {
                super.println(line);
                if (fatal != null && !thrown && line.contains(fatal)) {
                    thrown = true;
                    throw new StackOverflowError("planted");
                }
            }
        };
        System.setOut(caught);
        System.setErr(caught);
        try {
            status = ArrayTour.run(arguments);
        } finally {
            System.setOut(out);
            System.setErr(err);
        }
        printed = bytes.toString("UTF-8");
    }

    private static String[] with(String... options) {
        List<String> arguments = new ArrayList<>(Arrays.asList(options));
        arguments.addAll(Arrays.asList(ACCOUNT));
        return arguments.toArray(new String[0]);
    }

    private void testArguments() throws Exception {
        String[][] refused = {
            {"--nothing"}, {"--html"}, {"admin", "quorvel"}, {"--html", "/no/such/directory/tour.html"}};
        int before = Simulator.calls("*");
        for (String[] arguments : refused) {
            tour(null, arguments);
            expect(status == 2 && printed.contains("usage: "), String.join(" ", arguments));
        }
        tour(null, "--help");
        expect(status == 0 && printed.startsWith("usage: ") && Simulator.calls("*") == before, "help");
    }

    private void testWrongPassword() throws Exception {
        int before = Simulator.calls("QV_LoginQVAccount");
        tour(null, "admin", "wrong", ACCOUNT[2], ACCOUNT[3]);
        expect(Simulator.calls("QV_LoginQVAccount") == before + 1, "a wrong password is tried once");
        expect(status == 1 && ARRAY.QV_GetUnitCount() == 0, "a wrong password ends the tour");
        expectPrinted("UNEXPECTED: QV_LoginQVAccount with code 20102", ", 1 unexpected, 0 left out");
        expect(!printed.contains("Accounts\n"), "no page without a session");
    }

    /** The simulator's codes are known: an expected refusal has them. */
    private void testWrongCode() throws Exception {
        Simulator.force("QV_UnitAdd", REFUSED, 1);
        tour("Registered units");
        expectPrinted("Registering a unit twice\n  UNEXPECTED: QV_UnitAdd with code 1234",
                "Registered units\n  UNEXPECTED: java.lang.StackOverflowError",
                "Login\n  Left out: the tour ended before");
        expect(status == 1 && ARRAY.QV_GetUnitCount() == 0, "the units are removed");
    }

    private static void register(String name) throws Exception {
        QVUnitParam param = new QVUnitParam();
        param.unit_name = name;
        param.group_name = "";
        param.ctl0 = ACCOUNT[2];
        param.ctl1 = "";
        param.serial = "";
        ARRAY.QV_UnitAddByIP(param);
    }

    private void testWrongAddress() throws Exception {
        tour(null, "admin", "quorvel", "192.0.2.99", ACCOUNT[3]);
        expectPrinted("UNEXPECTED: QV_UnitAddByIP with code 20004", "Left out: no unit was registered");
        expect(status == 1 && ARRAY.QV_GetUnitCount() == 0, "nothing is registered");
    }

    /** A unit of that name is another's: it is neither visited nor taken from the list. */
    private void testTakenName() throws Exception {
        register("tour-south");
        int before = Simulator.calls("QV_LoginQVAccount");
        tour(null, with());
        expectPrinted("UNEXPECTED: QV_UnitAddByIP with code 20002");
        expect(status == 1 && Simulator.calls("QV_LoginQVAccount") == before, "the tour ends");
        expect(ARRAY.QV_GetUnitCount() == 1, "the unit stays");
        ARRAY.QV_UnitDelete("tour-south");
    }

    private static QVSessionInfo login(String unit) throws Exception {
        LoginRequest request = new LoginRequest();
        request.user_id = ACCOUNT[0];
        request.passwd = ACCOUNT[1];
        return ARRAY.QV_LoginQVAccount(unit, request);
    }

    /** A unit in use: two groups, an LU of 3 GiB in the first, and an account with a telling name. */
    private static void prepare(String unit) throws Exception {
        QVSessionInfo session = login(unit);
        for (int number = 0; number < 2; number++) {
            CreateRaidGroup group = new CreateRaidGroup();
            group.rgnum = number;
            group.level = 1;
            group.parity_hdu_count = 2;
            group.parity_count = 1;
            group.rgdrv = new CreateRgDrive[0];
            ARRAY.QV_CreateRaidGroup(unit, session, group);
        }
        LogicalUnitCreationRequest lu = new LogicalUnitCreationRequest();
        lu.lu_capacity_l = 3 << 21;
        lu.befor_lun = new int[128];
        ARRAY.QV_CreateLogicalUnit(unit, session, lu);
        Account account = new Account();
        account.user_id = "<b>&\"\u0001\u00fc";
        account.role = 3;
        account.passwd = "";
        ARRAY.QV_CreateAccount(unit, session, account);
    }

    private static Map<String, Integer> calls() {
        Map<String, Integer> calls = new TreeMap<>();
        for (NativeCall each : NativeCall.all()) {
            calls.put(each.function(), Simulator.calls(each.function()));
        }
        return calls;
    }

    private void testReadOnly() throws Exception {
        register("<mine>");
        prepare("<mine>");
        Map<String, Integer> before = calls();
        InputStream in = System.in;
        System.setIn(new ByteArrayInputStream("quorvel\n".getBytes("UTF-8")));
        tour(null, "--read-only", "--html", page.toString(), "admin", "-", ACCOUNT[2], ACCOUNT[3]);
        System.setIn(in);
        expect(status == 0, "read-only: nothing is unexpected");
        int all = 0;
        for (Map.Entry<String, Integer> call : calls().entrySet()) {
            int calls = call.getValue() - before.get(call.getKey());
            all += calls > 0 ? 1 : 0;
            // The list of units is not the array's: the second address is in it while the tour runs.
            boolean ofTheList = call.getKey().matches("QV_UnitAddByIP|QV_UnitDelete");
            expect(calls == 0 || call.getKey().matches(READING) || ofTheList && calls == 1,
                    "read-only: " + calls + " calls of " + call.getKey());
        }
        expect(all > 40, "read-only: " + all + " functions were called");
        expect(ARRAY.QV_GetUnitCount() == 1 && ARRAY.QV_GetUnitParam("<mine>") != null, "the unit stays");
        expectPrinted("192.0.2.10 is registered as <mine>", ", 0 unexpected, ");

        String html = new String(Files.readAllBytes(page), "UTF-8");
        expectMarkup(html, "<h1>&lt;mine&gt;</h1>", "<td>&lt;b&gt;&amp;&quot;\ufffd\u00fc</td>",
                "3.0 GiB of 931.5 GiB used, 0 %", "0 B of 931.5 GiB used, 0 %", "drives of unit 1</b>",
                "120 reads, 40 writes", "read-only", "Nothing was unexpected.");
        expect(!html.contains("<b>&\""), "a text of the array is not markup");
        expect(!html.matches("(?s).*(src=|href=|url\\(|@import|<script).*"), "the page loads nothing");
        ARRAY.QV_UnitDelete("<mine>");
    }

    private void expectMarkup(String html, String... texts) throws Exception {
        try {
            DocumentBuilderFactory.newInstance().newDocumentBuilder()
                    .parse(new ByteArrayInputStream(html.getBytes("UTF-8")));
        } catch (org.xml.sax.SAXException malformed) {
            expect(false, "the page is not well-formed: " + malformed);
        }
        for (String text : texts) {
            expect(html.contains(text), "not in the page: " + text);
        }
    }

    /** A refusal, an Error amidst what was made, and three things that cannot be removed. */
    private void testFailures() throws Exception {
        Simulator.force("QV_UnitAdd", REFUSED, 1);
        Simulator.force("QV_GetPartsList", REFUSED, 1);
        Simulator.force("QV_RaidGroupDelete", 0, 1);
        Simulator.force("QV_GetSpinDownUpInformation", NULL, 1);
        Simulator.force("QV_DeleteiSCSITarget", REFUSED, 1);
        Simulator.force("QV_UnitDelete", REFUSED, 2);
        tour("iqn.2004-01.example.tour:disk", with("--html", page.toString()));
        expect(status == 1, "something is unexpected");
        expectPrinted("Refused as expected: QV_UnitAdd with code 1234",
                "UNEXPECTED: QV_RaidGroupDelete was carried out, although it holds logical units",
                "Drive settings\n  UNEXPECTED: java.lang.NullPointerException",
                "QV_GetPartsList with code 1234 (the array library's own), at StatusPage.java:",
                "UNEXPECTED: java.lang.StackOverflowError: planted",
                "iSCSI hosts\n  Left out: the tour ended before",
                "Still there: iSCSI target tour", "Still there: unit tour-north in the library's list",
                ", 6 unexpected, ");
        expectMarkup(new String(Files.readAllBytes(page), "UTF-8"), "<b>Ports: iSCSI targets</b>",
                "<b>Still there</b> iSCSI target tour");
        expectNothingLeft("tour-north");
    }

    private void testRack() throws Exception {
        Rack rack = new Rack();
        rack.parts("fan", new int[] {1, 0, 4});
        rack.parts("loop", new int[] {0, 0});
        DiskDrive[] drives = {new DiskDrive(), new DiskDrive()};
        drives[1].mount = 1;
        drives[1].drv_state = 7;
        DiskDriveInformation[] information = {new DiskDriveInformation(), new DiskDriveInformation()};
        information[1].serial = "<7>";
        rack.enclosure(0, drives, information);
        rack.enclosure(1, new DiskDrive[] {new DiskDrive()}, information);
        printed = rack.markup();
        expectMarkup("<div>" + printed + "</div>", "2 of 3</span>", ">2!</li>",
                "<p class=\"note\">! fan 2, condition 4</p>", "<li class=\"empty\">0</li>",
                "serial &lt;7&gt;, state 7</p>");
        expect(!printed.contains("loop") && !printed.contains("unit 1"), "what is empty is not shown");
    }

    private void expectNothingLeft(String unit) throws Exception {
        QVSessionInfo session = login(unit);
        int groups = 0;
        for (RgDetail group : ARRAY.QV_GetRaidGroupInformation(unit, session).rg) {
            groups += group.valid_index;
        }
        int lus = 0;
        for (LogicalUnit lu : ARRAY.QV_GetLogicalUnit(unit, session)) {
            lus += lu.lu_valid;
        }
        int accounts = 0;
        for (QVAccountBaseInfo account : ARRAY.QV_GetAccountInformation(unit, session).account_info) {
            accounts += account.user_id.isEmpty() ? 0 : 1;
        }
        expect(groups == 0 && lus == 0, groups + " groups and " + lus + " LUs are left");
        expect(accounts == 1, accounts + " accounts are left");
        expect(ARRAY.QV_GetHGList(unit, session).ctl[0].port[2].hg[1].valid == 0, "the host group is left");
        expect(ARRAY.QV_GetUserInformation(unit, 0).num == 0, "the unit's own user is left");
        expect(ARRAY.QV_GetAccountBanner(unit).warning_banner.isEmpty(), "the banner is left");
    }
}
