import java.io.ByteArrayOutputStream;
import java.io.File;
import java.io.IOException;
import java.io.PrintStream;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.nio.file.StandardCopyOption;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.Collections;
import java.util.Comparator;
import java.util.List;
import java.util.Map;
import java.util.Random;
import java.util.TreeMap;
import java.util.stream.Collectors;
import java.util.stream.Stream;
import java.util.zip.ZipEntry;
import java.util.zip.ZipFile;
import java.util.zip.ZipOutputStream;
import javax.tools.ToolProvider;
import quorvelj.tools.Application;
import quorvelj.tools.LibraryFile;
import quorvelj.tools.Main;

/**
 * What the doctor says of applications and libraries that do not fit, and what becomes of the calls
 * then. Usage: DoctorTest JAVA JAVA_OF_32_BITS TOOLS_JAR PRODUCT_JAR TESTS_JAR SOURCES DIRECTORY
 * LIBRARIES LIBRARIES_OF_32_BITS LIBRARIES_FOR_WINDOWS VERSION. The second JVM and the libraries for
 * other targets may be missing where this is not CI.
 */
public final class DoctorTest {
    private static final int MUTATIONS = 1000;
    /** For programs that run for a moment. */
    private static final String[] QUICK = {"-XX:+UseSerialGC", "-XX:TieredStopAtLevel=1"};

    private String java;
    private final String java32;
    private final String toolsJar;
    private final File productJar;
    private final String testsJar;
    private final Path sources;
    private final Path directory;
    private final Path libraries;
    private final Path libraries32;
    private final Path librariesForWindows;
    private final String version;
    private final List<String> failures = new ArrayList<>();

    private String printed = "";
    private int status;

    private DoctorTest(String[] arguments) {
        java = arguments[0];
        java32 = arguments[1];
        toolsJar = arguments[2];
        productJar = new File(arguments[3]);
        testsJar = arguments[4];
        sources = Paths.get(arguments[5]);
        directory = Paths.get(arguments[6]);
        libraries = Paths.get(arguments[7]);
        libraries32 = Paths.get(arguments[8]);
        librariesForWindows = Paths.get(arguments[9]);
        version = arguments[10];
    }

    public static void main(String[] arguments) throws Exception {
        DoctorTest test = new DoctorTest(arguments);
        test.clear();
        test.testApplications();
        test.testDamagedClasses();
        test.testArguments();
        test.testSearch();
        test.testLibraries(test.libraries, "libquorvelj.so", "libquorvel.so", "x86-64");
        test.testMutations(test.libraries.resolve("libquorvel.so"));
        if (test.has(test.librariesForWindows.resolve("quorvelj.dll"))) {
            test.testLibraries(test.librariesForWindows, "quorvelj.dll", "quorvel.dll", "x86");
            test.testMutations(test.librariesForWindows.resolve("quorvel.dll"));
        }
        if (test.has(test.libraries32.resolve("libquorvelj.so")) && test.has(Paths.get(test.java32))) {
            test.testWidths();
        }
        test.failures.forEach(failure -> System.out.println("FAILED: " + failure));
        System.exit(test.failures.isEmpty() ? 0 : 1);
    }

    /** Makes the directory anew. */
    private void clear() throws IOException {
        if (Files.exists(directory)) {
            try (Stream<Path> files = Files.walk(directory)) {
                files.sorted(Comparator.reverseOrder()).map(Path::toFile).forEach(File::delete);
            }
        }
        Files.createDirectories(directory);
    }

    private boolean has(Path file) {
        boolean exists = Files.exists(file);
        if (!exists) {
            System.out.println("doctor: not tried without " + file);
            expect(System.getenv("CI") == null, "CI must have it");
        }
        return exists;
    }

    private void expect(boolean holds, String what) {
        if (!holds) {
            failures.add(what);
        }
    }

    // Programs

    private void run(String... command) throws IOException, InterruptedException {
        Process process = new ProcessBuilder(command).redirectErrorStream(true).start();
        printed = new String(Application.allOf(process.getInputStream()), StandardCharsets.UTF_8);
        status = process.waitFor();
    }

    /** In this JVM, unless another is asked: to start one takes longer than the doctor does. */
    private void doctor(String... arguments) throws IOException, InterruptedException {
        Stream<String> words = Stream.concat(Stream.of("doctor"), Arrays.stream(arguments));
        if (java.equals(java32)) {
            run(Stream.concat(Stream.of(java, QUICK[0], QUICK[1], "-jar", toolsJar), words)
                    .toArray(String[]::new));
            return;
        }
        ByteArrayOutputStream bytes = new ByteArrayOutputStream();
        PrintStream all = new PrintStream(bytes, true, "UTF-8");
        PrintStream out = System.out;
        PrintStream err = System.err;
        System.setOut(all);
        System.setErr(all);
        try {
            status = Main.run(words.collect(Collectors.toList()), all);
        } finally {
            System.setOut(out);
            System.setErr(err);
        }
        printed = bytes.toString("UTF-8");
    }

    // Applications

    /** A copy of the product's jar in which the first match in the text of one class is replaced. */
    private String application(String name, String old, String replacement) throws IOException {
        Path source = sources.resolve("tessaly/str/diskarray/" + name + ".java");
        Path edited = directory.resolve(name + ".java");
        String text = new String(Files.readAllBytes(source), StandardCharsets.UTF_8);
        String editedText = text.replaceFirst(old, replacement);
        expect(!text.equals(editedText), name + " has no " + old);
        Files.write(edited, editedText.getBytes(StandardCharsets.UTF_8));
        Path classes = Files.createTempDirectory(directory, "classes");
        ByteArrayOutputStream messages = new ByteArrayOutputStream();
        int code = ToolProvider.getSystemJavaCompiler().run(null, messages, messages,
                "-nowarn", "--release", "8", "-classpath", productJar.getPath(),
                "-d", classes.toString(), edited.toString());
        expect(code == 0, messages.toString());
        Map<String, byte[]> compiled = new TreeMap<>();
        compiled.put("tessaly/str/diskarray/" + name + ".class", null);
        try (Stream<Path> files = Files.walk(classes)) {
            for (Path file : files.filter(Files::isRegularFile).collect(Collectors.toList())) {
                compiled.put(classes.relativize(file).toString(), Files.readAllBytes(file));
            }
        }
        return application(compiled);
    }

    /** A copy of the product's jar in which these entries are replaced; null leaves one out. */
    private String application(Map<String, byte[]> replaced) throws IOException {
        Path jar = directory.resolve("application.jar");
        try (ZipFile product = new ZipFile(productJar);
                ZipOutputStream out = new ZipOutputStream(Files.newOutputStream(jar))) {
            for (ZipEntry entry : Collections.list(product.entries())) {
                if (!replaced.containsKey(entry.getName())) {
                    out.putNextEntry(new ZipEntry(entry.getName()));
                    out.write(Application.allOf(product.getInputStream(entry)));
                }
            }
            for (Map.Entry<String, byte[]> entry : replaced.entrySet()) {
                if (entry.getValue() != null) {
                    out.putNextEntry(new ZipEntry(entry.getKey()));
                    out.write(entry.getValue());
                }
            }
        }
        return jar.toString();
    }

    /** Class, text, what it becomes; what the doctor says; a method, and what comes of its call. */
    private static final String[][] APPLICATIONS = {
        {"RgDetail", "public int lu_count;", "",
            "RgDetail.lu_count  missing, wanted int: QV_GetAllInformation, QV_GetAllInformationLite"
                    + " and 3 more will throw 2817",
            "QV_GetRaidGroupInformation", "2817"},
        {"RgDetail", "int lu_count", "long lu_count", "RgDetail.lu_count  is long, wanted int: QV_G",
            "QV_GetRaidGroupInformation", "2817"},
        {"RgDetail", "int lu_count", "static int lu_count",
            "RgDetail.lu_count  is static int, wanted int: ", "QV_GetRaidGroupInformation", "2817"},
        {"RgDetail", "class RgDetail \\{", "class RgDetail { RgDetail(int a, RgDetail[] b) {}",
            "RgDetail  has (int, RgDetail[]), wanted (): ", "QV_GetRaidGroupInformation", "2817"},
        {"RgDetail", "class RgDetail \\{", "abstract class RgDetail {", "RgDetail  is abstract: ",
            "QV_GetRaidGroupInformation", "2817"},
        {"RgDriveInfo", "(?s).*", "", "RgDriveInfo  missing: QV_G",
            "QV_GetRaidGroupInformation", "2817"},
        {"RgDetail", "class RgDetail \\{", "class RgDetail { private RgDetail() {}", "",
            "QV_GetRaidGroupInformation", "ok"},
        {"RgDetail", "(?s)class RgDetail (.*)public int lu_count;",
            "class RgDetail extends RgBase $1 static int lu_count; }"
                    + "class RgBase { private final int lu_count = 1;",
            "",
            "QV_GetRaidGroupInformation", "ok"},
        {"Threshold", "public int unc", "public long unc",
            "Threshold.uncorrectable_error  is long, wanted int: QV_GetThreshold will throw 2817;"
                    + " QV_SetThreshold will hand over a part and throw NoSuchFieldError or",
            "QV_SetThreshold", "NoSuchFieldError"},
        {"AccountBanner", "String warning_banner", "Object warning_banner",
            "AccountBanner.warning_banner  is Object, wanted String: QV_GetAccountBanner,"
                    + " QV_GetAccountBannerAuth will throw 2817 or NoSuchFieldError; ",
            "QV_GetAccountBanner", "NoSuchFieldError"},
        {"QVSessionInfo", " = new byte.32.", "",
            "QVSessionInfo()  leaves session_id null, wanted byte[32]: QV_LoginQVAccount,"
                    + " QV_LoginQVAccountAlertCheck will throw 2817  ",
            "QV_GetUnitCount", "2817"},
        {"QVSessionInfo", "new byte.32.", "new byte[16]",
            "QVSessionInfo()  leaves session_id a byte[16], wanted byte[32]: ",
            "QV_GetUnitCount", "2817"},
        {"QVSessionInfo", "new byte.32.", "java.util.Arrays.copyOf(new byte[0], 16)",
            "constructors that call other code were not run: QVSessionInfo(); --construct runs them",
            "QV_GetUnitCount", "2817"},
        {"DiskArrayException", "DiskArrayException\\(int code\\) \\{",
            "DiskArrayException(long code) { this((int) code, 0); }"
                    + "private DiskArrayException(int code, int zero) {",
            "DiskArrayException  has (int, int), (long), wanted (int): codes will be lost",
            "QV_UnitAdd", "NoSuchMethodError"},
        {"DiskArrayUtilityJNI", "int QV_GetUnitCount\\(\\)", "int QV_ModeSense()",
            "QV_ModeSense  declared, not in the bridge: UnsatisfiedLinkError at the call",
            "QV_ModeSense", "UnsatisfiedLinkError"},
        {"DiskArrayUtilityJNI", "int QV_GetUnitCount\\(\\)", "void QV_GetUnitCount(int[][] a, String b)",
            "QV_GetUnitCount  declared (int[][], String) void, built for () int",
            "QV_GetRaidGroupInformation", "ok"},
        {"DiskArrayUtilityJNI", "public native int QV_GetUnitCount\\(\\) throws DiskArrayException;", "",
            "375 native methods, 374 declared by the application", "QV_GetRaidGroupInformation",
            "ok"},
    };

    /** What the doctor foretells comes true. */
    private void testApplications() throws Exception {
        for (String[] row : APPLICATIONS) {
            String jar = application(row[0], row[1], row[2]);
            doctor("--classes", jar, "--natives", libraries.toString());
            boolean isSound = row[5].equals("ok") && !row[3].contains("declared (");
            boolean isUntried = row[3].contains("--construct");
            expectReport(isSound || isUntried ? 0 : 1, row[3]);
            if (isUntried) {
                doctor("--classes", jar, "--natives", libraries.toString(), "--construct");
                expectReport(1, "QVSessionInfo()  leaves session_id a byte[16], wanted byte[32]");
            }
            run(java, QUICK[0], QUICK[1], "-Djava.library.path=" + libraries, "-classpath",
                    jar + File.pathSeparator + testsJar, "DoctorCall", row[4]);
            expect(printed.startsWith(row[5]), row[4] + " ended with " + printed + " after "
                    + row[0] + " got " + row[2]);
        }
    }

    private void expectReport(int wantedStatus, String line) {
        expect(status == wantedStatus && printed.contains(line),
                "wanted " + wantedStatus + " and " + line + ", got " + status + "\n" + printed);
        String last = wantedStatus == 1 ? " s, 1 problem" : " s, no problem";
        expect(wantedStatus == 2 || printed.contains(last), "wanted" + last + "\n" + printed);
    }

    private void testDamagedClasses() throws Exception {
        String name = "tessaly/str/diskarray/RgDetail.class";
        byte[] whole;
        try (ZipFile product = new ZipFile(productJar)) {
            whole = Application.allOf(product.getInputStream(product.getEntry(name)));
        }
        byte[] newer = whole.clone();
        newer[7] = 99; // the version of the class file
        Object[][] contents = {
            {newer, "RgDetail  is for Java 55, this JVM is "},
            {Arrays.copyOf(whole, whole.length / 2), "RgDetail  cannot be read: truncated"},
            {new byte[10], "RgDetail  cannot be read: no class file"},
        };
        for (Object[] content : contents) {
            String jar = application(Collections.singletonMap(name, (byte[]) content[0]));
            doctor("--classes", jar, "--natives", libraries.toString());
            expectReport(1, (String) content[1]);
        }
    }

    private void testArguments() throws Exception {
        String lib = libraries.toString();
        String jar = productJar.getPath();
        String broken = application("RgDetail", "public int lu_count;", "");
        doctor("--classes", broken, "--natives", lib, "--methods", "QV_GetThreshold,QV_UnitAdd");
        expectReport(0, "375 declared by the application, 2 looked at");
        String tour = lib + "/array-tour.jar";
        doctor("--classes", broken + File.pathSeparator + tour, "--natives", lib, "--used");
        expectReport(1, "RgDetail.lu_count  missing, wanted int: QV_GetAllInformation,"
                + " QV_GetRaidGroupInformation and 1 more will throw 2817");
        run(java, QUICK[0], QUICK[1], "-jar", toolsJar, "doctor", "--help");
        expect(status == 0 && printed.split("\n").length < 24, "help");
        String[][] refused = {
            {"--nothing", "unknown: --nothing"},
            {"--classes", "--classes without a value"},
            {"--classes", directory.toString(), directory + " is a directory, not a jar"},
            {"--classes", "nothing.jar", "nothing.jar is missing"},
            {"--classes", lib + "/libquorvel.so", lib + "/libquorvel.so is no jar"},
            {"--natives", jar, jar + " is no directory"},
            {"--classes", jar, "--methods", "QV_None", "no native method: QV_None"},
        };
        for (String[] row : refused) {
            doctor(Arrays.copyOf(row, row.length - 1));
            expect(status == 2 && printed.equals("quorvelj-tools: " + row[row.length - 1] + "\n"),
                    row[row.length - 1] + " got " + status + " " + printed);
        }
    }

    // Libraries

    /** A directory with copies of a bridge and a quorvel in which a text is replaced. */
    private Path copies(Path from, String bridge, String quorvel, String old, String replacement)
            throws IOException {
        Path to = Files.createTempDirectory(directory, "libraries");
        Files.copy(from.resolve(bridge), to.resolve(bridge));
        String content =
                new String(Files.readAllBytes(from.resolve(quorvel)), StandardCharsets.ISO_8859_1);
        expect(content.contains(old), quorvel + " has no " + old);
        Files.write(to.resolve(quorvel),
                content.replace(old, replacement).getBytes(StandardCharsets.ISO_8859_1));
        return to;
    }

    private void doctorOf(Path natives) throws Exception {
        doctor("--classes", productJar.getPath(), "--natives", natives.toString());
    }

    private void testLibraries(Path from, String bridge, String quorvel, String machine)
            throws Exception {
        boolean isOwn = from.equals(libraries);
        doctorOf(from);
        expectReport(0, bridge + " " + version + ", " + machine + " ");
        expectReport(0, quorvel + " " + version + " (the simulator), " + machine + " ");
        expectReport(0, "371 of 371 in " + quorvel);
        expectReport(0, isOwn ? "the application's class loads quorvel before quorvelj"
                : "for another system than this JVM's: only read");

        Path lacking = copies(from, bridge, quorvel, "QV_GetPfmStatisCfg\0", "QV_XetPfmStatisCfg\0");
        doctorOf(lacking);
        expectReport(1, "QV_GetPfmStatisCfg missing: " + bridge + " will not load");
        expectReport(1, "370 of 371 in " + quorvel);
        if (isOwn) {
            run(java, QUICK[0], QUICK[1], "-Djava.library.path=" + lacking, "-classpath",
                    productJar + File.pathSeparator + testsJar, "DoctorCall", "QV_GetUnitCount");
            expect(printed.startsWith("UnsatisfiedLinkError")
                    && printed.contains("undefined symbol: QV_GetPfmStatisCfg"), printed);
        }

        byte[] whole = Files.readAllBytes(from.resolve(quorvel));
        Path damaged = copies(from, bridge, quorvel, "QV_", "QV_");
        Object[][] contents = {
            {Arrays.copyOf(whole, whole.length / 3), " is truncated or damaged"},
            {new byte[0], " is empty"},
            {"#!/bin/sh".getBytes(StandardCharsets.UTF_8), " is neither a DLL nor a shared object"},
        };
        for (Object[] content : contents) {
            Files.write(damaged.resolve(quorvel), (byte[]) content[0]);
            doctorOf(damaged);
            expectReport(1, quorvel + content[1]);
        }
        Files.delete(damaged.resolve(quorvel));
        doctorOf(damaged);
        expectReport(1, quorvel + " is missing");
        Files.delete(damaged.resolve(bridge));
        doctorOf(damaged);
        expectReport(1, "no quorvelj.dll and no libquorvelj.so in " + damaged);
    }

    /** JVMs and libraries of both widths. */
    private void testWidths() throws Exception {
        doctorOf(libraries32);
        expectReport(1, "a 64-bit JVM does not load 32-bit libraries: take a 32-bit JVM");
        String java64 = java;
        java = java32;
        doctorOf(libraries);
        expectReport(1, "a 32-bit JVM does not load 64-bit libraries: take a 64-bit JVM");
        doctorOf(libraries32);
        expectReport(0, "libquorvelj.so " + version + ", x86 ");
        java = java64;
        Path mixed = copies(libraries, "libquorvelj.so", "libquorvel.so", "QV_", "QV_");
        Files.copy(libraries32.resolve("libquorvel.so"), mixed.resolve("libquorvel.so"),
                StandardCopyOption.REPLACE_EXISTING);
        doctorOf(mixed);
        expectReport(1, "quorvel is for x86, the bridge for x86-64");
    }

    /** An application whose class does not load quorvel first. */
    private void testSearch() throws Exception {
        String lib = libraries.toString();
        String jar = application("DiskArrayUtilityJNI", "loadLibrary\\(\"quorvel\"\\)",
                "getProperty(\"a\")");
        doctor("--classes", jar, "--natives", lib);
        expectReport(0, "libquorvel.so is looked for beside libquorvelj.so");
        if (has(librariesForWindows.resolve("quorvelj.dll"))) {
            doctor("--classes", jar, "--natives", librariesForWindows.toString());
            expectReport(0, "quorvel.dll is found where its directory is on PATH: not known here");
        }
        Path apart = copies(libraries, "libquorvel.so", "libquorvelj.so", "$ORIGIN", "/nowher");
        doctor("--classes", jar, "--natives", apart.toString());
        expectReport(1, apart + " is not in LD_LIBRARY_PATH: libquorvel.so is not found");
        run(java, QUICK[0], QUICK[1], "-Djava.library.path=" + apart, "-classpath",
                jar + File.pathSeparator + testsJar, "DoctorCall", "QV_GetUnitCount");
        expect(printed.startsWith("UnsatisfiedLinkError"), printed);
    }

    /** Whatever a file holds, reading it ends, with a library or with one line. */
    private void testMutations(Path file) throws IOException {
        byte[] whole = Files.readAllBytes(file);
        Path mutated = directory.resolve("mutated");
        Random random = new Random(1);
        int refused = 0;
        long start = System.nanoTime();
        for (int round = 0; round < MUTATIONS; ++round) {
            byte[] content = round % 4 == 0
                    ? Arrays.copyOf(whole, random.nextInt(whole.length)) : whole.clone();
            // The headers and the tables at both ends are what is read.
            int span = round % 2 == 0 ? 1 << 10 : content.length;
            for (int change = random.nextInt(20); change >= 0 && content.length > 0; --change) {
                int at = random.nextInt(Math.min(span, content.length));
                content[random.nextBoolean() ? at : content.length - 1 - at] =
                        (byte) (random.nextBoolean() ? -1 : random.nextInt());
            }
            Files.write(mutated, content);
            try {
                LibraryFile.read(mutated);
            } catch (LibraryFile.NotALibrary e) {
                ++refused;
                expect(!e.getMessage().contains("\n"), e.getMessage());
            }
        }
        double seconds = (System.nanoTime() - start) / 1e9;
        expect(refused > MUTATIONS / 10 && seconds < 60, refused + " refused in " + seconds + " s");
        System.out.printf("doctor: %d mutations of %s, %d refused%n", MUTATIONS, file.getFileName(),
                refused);
    }
}
