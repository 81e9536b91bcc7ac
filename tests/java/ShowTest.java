import java.io.ByteArrayOutputStream;
import java.io.IOException;
import java.io.InputStream;
import java.io.PrintStream;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.Random;
import java.util.zip.CRC32;
import quorvelj.tools.Main;

/**
 * What `show` prints of recordings that are whole, cut off, damaged or none. Usage: ShowTest JAVA
 * TOOLS_JAR DIRECTORY PRINTED. The last has commands, each with its exit status and what it prints.
 */
public final class ShowTest {
    private static final int MUTATIONS = 5000;
    private static final int HEAD = 24;

    private final String java;
    private final String toolsJar;
    private final Path directory;
    private final Path printed;
    private final List<String> failures = new ArrayList<>();

    private ShowTest(String[] arguments) throws IOException {
        java = arguments[0];
        toolsJar = arguments[1];
        directory = Files.createDirectories(Paths.get(arguments[2]));
        printed = Paths.get(arguments[3]);
    }

    public static void main(String[] arguments) throws Exception {
        ShowTest test = new ShowTest(arguments);
        test.testPrinted();
        test.testRefused();
        test.testDamaged();
        test.testCutOff();
        test.testMutations();
        test.testReaderGone();
        test.failures.forEach(failure -> System.out.println("FAILED: " + failure));
        System.exit(test.failures.isEmpty() ? 0 : 1);
    }

    private void expect(boolean holds, String what) {
        if (!holds) {
            failures.add(what);
        }
    }

    // Recordings

    private static byte[] join(byte[]... parts) {
        ByteArrayOutputStream all = new ByteArrayOutputStream();
        for (byte[] part : parts) {
            all.write(part, 0, part.length);
        }
        return all.toByteArray();
    }

    private static byte[] number(long value) {
        return value < 128 ? new byte[] {(byte) value}
                : join(new byte[] {(byte) (value & 127 | 128)}, number(value >> 7));
    }

    private static byte[] signed(long value) {
        return number(value < 0 ? -2 * value - 1 : 2 * value);
    }

    private static byte[] head(int bits) {
        return ByteBuffer.allocate(HEAD).order(ByteOrder.LITTLE_ENDIAN)
                .put("quorvrec".getBytes(StandardCharsets.UTF_8)).putInt(1).putInt(bits)
                .putLong(1700000000123L).array();
    }

    /** A body with its length and sum. */
    private static byte[] entry(byte[] body) {
        CRC32 sum = new CRC32();
        sum.update(body);
        return join(ByteBuffer.allocate(8).order(ByteOrder.LITTLE_ENDIAN).putInt(body.length)
                .putInt((int) sum.getValue()).array(), body);
    }

    private static byte[] call(int number, int thread, long start, long took, int result, String function,
            byte[]... parameters) {
        byte[] name = function.getBytes(StandardCharsets.UTF_8);
        return entry(join(number(number), number(thread), number(start), number(took), signed(result),
                number(name.length), name, number(parameters.length), join(parameters)));
    }

    private static byte[] bytes(int... values) {
        byte[] all = new byte[values.length];
        for (int index = 0; index < values.length; ++index) {
            all[index] = (byte) values[index];
        }
        return all;
    }

    // Chunks and parameters

    private static byte[] literal(int... values) {
        return join(number(values.length << 2), bytes(values));
    }

    private static byte[] text(String text, int room) {
        byte[] bytes = text.getBytes(StandardCharsets.UTF_8);
        return join(number(bytes.length << 2), bytes,
                room == bytes.length ? new byte[0] : zeros(room - bytes.length));
    }

    private static byte[] zeros(int count) {
        return number((long) count << 2 | 1);
    }

    private static byte[] unwritten(int count) {
        return number((long) count << 2 | 2);
    }

    private static byte[] repeated(int count, int distance) {
        return join(number((long) count << 2 | 3), number(distance));
    }

    private static byte[] value(int value) {
        return join(new byte[] {0}, signed(value));
    }

    private static byte[] input(int bytes, int sameAs, byte[]... chunks) {
        return join(new byte[] {1}, number(bytes), number(sameAs), join(chunks));
    }

    private static byte[] output(int bytes, int behind, int sameAs, byte[]... chunks) {
        return join(new byte[] {2}, number(bytes), number(behind), number(sameAs), join(chunks));
    }

    private static final byte[] NULL = {3};
    private static final byte[] UNIT = input(65, 0, text("north", 65));
    private static final byte[] SESSION = input(32, 0, text("secret-1", 32));

    private static final byte[] SAME = new byte[0];

    /** The calls end in another order than they begin, and some never do. */
    private static List<byte[]> calls(String user, int port, int behind, String unit) {
        byte[] controller = literal(1, 0, 0, 0, 208, 7, 0, 0, 255, 255, 255, 255, port, 0, 0, 0);
        return new ArrayList<>(Arrays.asList(
            call(1, 1, 1500, 2345678, 0, "QV_LoginQVAccount", UNIT,
                    input(648, 0, text(user, 257), text("secret-2", 257), literal(0, 9, 1, 0, 0, 0),
                            zeros(128)),
                    output(32, 0, 0, text("secret-1", 32))),
            call(3, 2, 3000000, 55999, 0, "QV_GetLANPortNumber", UNIT, SESSION,
                    output(40, behind, 0, controller, repeated(16, 16), zeros(8))),
            call(2, 1, 2000000, 999, 0, "QV_GetDMLU", UNIT, NULL,
                    output(32, 0, 0, zeros(8), literal(7), zeros(19), unwritten(4))),
            call(4, 1, 4000000, 0, 0, "QV_GetDMLU", input(65, 2, SAME), NULL,
                    output(32, 0, 2, SAME)),
            call(5, 1, 5000000, 0, 0, "QV_GetAccountBanner", NULL,
                    output(6004, 0, 0, literal(1, 0, 0, 0, 'x'), repeated(5999, 1))),
            call(6, 1, 6000000, 0, -3, "QV_New\u001b", value(-7), NULL,
                    output(70, 0, 0, literal(1, 255, 'a'), zeros(64), unwritten(3)), SESSION),
            call(8, 300, 8000000, 0, 0, "QV_GetUnitParamTable", value(2),
                    output(1224, 0, 0, text(unit, 65), text("seventeen letters", 17),
                            literal(254, 254, 254), zeros(2), literal(0xe0, 0x81, 0x81), zeros(518),
                            literal(2), zeros(615))),
            call(9, 1, 9000000, 0, 4109, "QV_GetHGOption", NULL, NULL, value(0), value(1),
                    value(2), output(36, 0, 0, unwritten(36))),
            call(10, 1, 9000001, 0, 0, "QV_GetHGOption", NULL, NULL, value(0), value(1),
                    value(2), output(36, 0, 0, literal(1, 2), unwritten(2), repeated(4, 4),
                            zeros(24), literal(0, 1, 0, 0))),
            call(11, 1, 9000002, 0, 0, "QV_GetTurboLU", NULL, NULL,
                    output(44, 0, 0, literal(1), zeros(43))),
            call(12, 1, 9000003, 0, 0, "QV_GetThreshold", NULL, NULL, output(60, 0, 0, zeros(60))),
            call(13, 1, 9000004, 0, 0, "QV_GetRemoteDeviceInformation", NULL, NULL,
                    output(20, 0, 0, literal(2, 0, 0, 0, 'A', 0), unwritten(3), literal('B'),
                            unwritten(10))),
            call(14, 1, 9000005, 0, 0, "QV_GetDMLU", NULL, NULL,
                    output(32, 0, 0, zeros(8), literal(1, 0, 0, 0, 9), zeros(19))),
            call(15, 1, 9000005, 0, 0, "QV_GetArrayCondition", NULL, NULL,
                    output(100, 0, 0, zeros(48), literal(3), zeros(51))),
            call(133, 1, 9000006, 0, 0, "QV_GetThreshold", value(1))));
    }

    private static byte[] recording(List<byte[]> calls) {
        return join(head(64), join(calls.toArray(new byte[0][])));
    }

    // Programs

    private Path write(String name, byte[] content) throws IOException {
        return Files.write(directory.resolve(name), content);
    }

    private int status;

    /** What the command prints, its errors behind that. */
    private String show(String... arguments) throws IOException, InterruptedException {
        List<String> command = new ArrayList<>(
                Arrays.asList(java, "-XX:+UseSerialGC", "-XX:TieredStopAtLevel=1", "-jar", toolsJar, "show"));
        command.addAll(Arrays.asList(arguments));
        Process process = new ProcessBuilder(command).directory(directory.toFile())
                .redirectErrorStream(true).start();
        ByteArrayOutputStream all = new ByteArrayOutputStream();
        byte[] buffer = new byte[1 << 13];
        InputStream in = process.getInputStream();
        for (int count; (count = in.read(buffer)) > 0; ) {
            all.write(buffer, 0, count);
        }
        status = process.waitFor();
        return all.toString("UTF-8");
    }

    private void expectShown(int wantedStatus, String[] lines, String... arguments) throws Exception {
        String printed = show(arguments);
        String wanted = String.join("\n", lines) + "\n";
        expect(status == wantedStatus && printed.equals(wanted),
                Arrays.toString(arguments) + ": status " + status + ", wanted " + wantedStatus + " and\n"
                        + wanted + "got\n" + printed);
    }

    private void testPrinted() throws Exception {
        List<byte[]> calls = calls("admin", 5, 4, "\u00e4\u0007\u202e\"");
        write("first", recording(calls));
        List<byte[]> others = calls("root", 5, 4, "north");
        others.remove(9);
        others.set(1, call(3, 1, 1, 1, 2817, "QV_GetLANPortNumber", UNIT, NULL,
                output(40, 0, 0, unwritten(40))));
        others.add(call(200, 1, 1, 1, 0, "QV_GetDMLU", UNIT, SESSION, NULL));
        write("second", recording(others));
        String wanted = new String(Files.readAllBytes(printed), StandardCharsets.UTF_8);
        for (String part : wanted.substring(2).split("\n\\$ ")) {
            String[] lines = part.split("\n");
            String[] words = lines[0].split(" ");
            expectShown(Integer.parseInt(words[0]), Arrays.copyOfRange(lines, 1, lines.length),
                    Arrays.copyOfRange(words, 1, words.length));
        }
    }

    private void testRefused() throws Exception {
        write("empty", new byte[0]);
        write("foreign", new byte[100]);
        byte[] newer = head(64);
        newer[8] = 2;
        write("newer", newer);
        write("wide", head(65));
        String[][] refused = {
            {"", "show without a file"},
            {"nowhere", "nowhere is missing"},
            {".", ". is no file"},
            {"empty", "empty is empty"},
            {"foreign", "foreign is no recording"},
            {"newer", "newer is a recording of version 2, not 1"},
            {"wide", "wide is a recording of a process of 65 bits"},
            {"first 7", "no call 7 in first"},
            {"first 1,16-99", "no call 16-99 in first"},
            {"first 1-", "no numbers of calls: 1-"},
            {"first 1 2", "more than one of CALLS, --record and --against"},
            {"first --record", "--record without a value"},
            {"first --record Nothing", "unknown record: Nothing"},
            {"first --against nowhere", "nowhere is missing"},
            {"first --all", "unknown: --all"},
        };
        for (String[] row : refused) {
            expectShown(2, new String[] {"quorvelj-tools: " + row[1]},
                    row[0].isEmpty() ? new String[0] : row[0].split(" "));
        }
        String help = show("--help");
        expect(status == 0 && help.startsWith("java -jar quorvelj-tools.jar show FILE ["), help);
    }

    // Files that are damaged: shown by the command's own entry, since a process takes longer

    private final ByteArrayOutputStream errors = new ByteArrayOutputStream();

    private String shownHere(byte[] content, String... arguments) throws Exception {
        List<String> words = new ArrayList<>(
                Arrays.asList("show", write("damaged", content).toString()));
        words.addAll(Arrays.asList(arguments));
        ByteArrayOutputStream out = new ByteArrayOutputStream();
        PrintStream before = System.err;
        errors.reset();
        System.setErr(new PrintStream(errors, true, "UTF-8"));
        try {
            status = Main.run(words, out);
        } finally {
            System.setErr(before);
        }
        return out.toString("UTF-8") + errors.toString("UTF-8");
    }

    /** 16 bytes. */
    private static byte[] shortCall(int number) {
        return entry(new byte[] {(byte) number, 1, 0, 0, 0, 1, 'F', 0});
    }

    /** Call 2 of F from the number of parameters on. */
    private static byte[] callOfF(int... rest) {
        return entry(join(bytes(2, 1, 0, 0, 0, 1, 'F'), bytes(rest)));
    }

    /** Call 1 of 16 bytes, then one whose body begins at byte 48. */
    private void testDamaged() throws Exception {
        byte[] wrongSum = shortCall(2);
        wrongSum[10] = 1;
        Object[][] rows = {
            {wrongSum, "40: the sum of the entry is wrong"},
            {bytes(255, 255, 255, 255, 0, 0, 0, 0), "40: an entry of 4294967295 bytes"},
            {shortCall(1), "48: call 1 for the second time"},
            {shortCall(0), "48: a call 0"},
            {entry(bytes(2)), "49: the entry is too short for what it begins"},
            {entry(bytes(2, 255, 255, 255, 255, 255, 255, 255, 255, 255, 2)),
                "49: a number of more than 64 bits"},
            {entry(bytes(2, 255, 255, 255, 255, 255, 255, 255, 255, 255, 1)),
                "49: a number as large as 18446744073709551615"},
            {entry(bytes(2, 1, 0, 0, 0, 255, 127)), "53: the length of a name: 16383"},
            {entry(bytes(2, 1, 0, 0, 0, 3, 'F')), "54: 3 bytes where the entry has 1"},
            {callOfF(101), "55: the number of parameters: 101"},
            {callOfF(0, 0), "56: 1 byte behind the last parameter"},
            {callOfF(1, 4), "56: a parameter of kind 4"},
            {callOfF(1, 1, 128, 128, 128, 128, 1), "57: the bytes of a parameter: 268435456"},
            {callOfF(1, 1, 4, 0, 20), "59: a chunk of 5 bytes where the parameter lacks 4"},
            {callOfF(1, 1, 4, 0, 0), "59: a chunk of 0 bytes where the parameter lacks 4"},
            {callOfF(1, 1, 4, 0, 16, 9), "60: 4 bytes where the entry has 1"},
            {callOfF(1, 1, 4, 0, 18), "59: an input that the library did not write"},
            {callOfF(1, 1, 4, 0, 5, 15, 2), "60: the bytes that stand 2 before byte 1"},
            {callOfF(1, 1, 4, 9), "58: the bytes of call 9, which is no earlier one of F"},
            {entry(bytes(2, 1, 0, 0, 0, 1, 'G', 1, 1, 4, 1)), "58: the bytes of call 1, which is no earlier one of G"},
            {callOfF(1, 1, 4, 1), "58: the bytes of call 1, which has others there"},
            {join(callOfF(1, 1, 4, 0, 17), entry(bytes(3, 1, 0, 0, 0, 1, 'F', 1, 1, 5, 2))),
                "78: the bytes of call 2, which has others there"},
            {join(callOfF(1, 1, 4, 0, 17), entry(bytes(3, 1, 0, 0, 0, 1, 'F', 1, 2, 4, 0, 2))),
                "79: the bytes of call 2, which has others there"},
        };
        for (Object[] row : rows) {
            String printed = shownHere(join(head(64), shortCall(1), (byte[]) row[0]));
            expect(status == 1 && printed.contains("  F() = 0  not in the catalogue\n")
                    && printed.endsWith("damaged: damaged at byte " + row[1]
                            + "; what precedes the entry is shown\n"),
                    row[1] + " got " + status + "\n" + printed);
        }
    }

    /** A file that ends after any of its bytes. */
    private void testCutOff() throws Exception {
        byte[] whole = join(head(32), shortCall(1), shortCall(3), shortCall(2));
        String[] numbers = {"", " 1", " 1, 3", " 1, 2, 3"};
        for (int length = 1; length <= whole.length; ++length) {
            String printed = shownHere(Arrays.copyOf(whole, length));
            if (length < HEAD) {
                expect(status == 2 && printed.endsWith(
                        "damaged ends at byte " + length + ", inside the head of a recording\n"), printed);
                continue;
            }
            int calls = (length - HEAD) / 16;
            int lines = 2 + calls + (calls == 2 ? 1 : 0) + ((length - HEAD) % 16 == 0 ? 0 : 1);
            expect(status == 0 && printed.split("\n").length == lines
                    && printed.contains("damaged: without an end: 2\n") == (calls == 2)
                    && (length - HEAD) % 16 == 0 != printed.endsWith("damaged: ends inside the entry at byte "
                            + new int[] {24, 40, 56, 72}[calls] + "; what precedes it is whole\n"),
                    length + " bytes: " + printed);
        }
    }

    /** Whatever a file holds, showing it ends, with lines or with one line. */
    private void testMutations() throws Exception {
        List<byte[]> calls = calls("admin", 5, 4, "north");
        String[][] commands = {{}, {"1-99"}, {"--record", "QVSessionInfo"},
            {"--against", directory.resolve("first").toString()}};
        Random random = new Random(1);
        int[] statuses = new int[3];
        long start = System.nanoTime();
        for (int round = 0; round < MUTATIONS; ++round) {
            List<byte[]> mutated = new ArrayList<>(calls);
            int place = random.nextInt(calls.size());
            byte[] content = Arrays.copyOfRange(calls.get(place), 8, calls.get(place).length);
            for (int change = random.nextInt(3); change >= 0; --change) {
                content[random.nextInt(content.length)] =
                        (byte) (random.nextBoolean() ? random.nextInt() : random.nextInt(13));
            }
            mutated.set(place, entry(content));
            byte[] file = recording(mutated);
            if (round % 4 == 0) {
                file[random.nextInt(file.length)] ^= 1 << random.nextInt(8);
            }
            String printed = "";
            try {
                printed = shownHere(file, commands[random.nextInt(commands.length)]);
            } catch (RuntimeException e) {
                expect(false, "round " + round + ": " + e);
            }
            ++statuses[status];
            expect(printed.endsWith("\n") && errors.toString("UTF-8").split("\n").length == 1,
                    "round " + round + ": " + printed);
        }
        double seconds = (System.nanoTime() - start) / 1e9;
        expect(statuses[0] > MUTATIONS / 10 && statuses[1] > MUTATIONS / 10 && seconds < 120,
                Arrays.toString(statuses) + " in " + seconds + " s");
        System.out.printf("show: %d mutations in %.1f s, statuses %s%n", MUTATIONS, seconds,
                Arrays.toString(statuses));
    }

    /** A reader that goes away ends it without a word. */
    private void testReaderGone() throws Exception {
        List<byte[]> calls = new ArrayList<>();
        for (int number = 1; number <= 100; ++number) {
            calls.add(call(number, 1, 0, 0, 0, "QV_GetAccountBanner", NULL,
                    output(6004, 0, 0, literal('x'), repeated(6003, 1))));
        }
        write("long", recording(calls));
        Path words = directory.resolve("words");
        Process process = new ProcessBuilder(java, "-jar", toolsJar, "show", "long", "--record", "AccountBanner")
                .directory(directory.toFile()).redirectError(words.toFile()).start();
        process.getInputStream().read();
        process.getInputStream().close();
        expect(process.waitFor() == 0 && Files.size(words) == 0,
                "the reader went away: " + new String(Files.readAllBytes(words), StandardCharsets.UTF_8));
    }
}
