import java.io.ByteArrayOutputStream;
import java.io.File;
import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.concurrent.TimeUnit;
import java.util.regex.Matcher;
import java.util.regex.Pattern;
import java.util.stream.Collectors;
import javax.tools.JavaCompiler;
import javax.tools.ToolProvider;

/**
 * Compiles and runs the programs of the pages, and compares what they print with what the pages say.
 * Each block of Java is a program, and the block of text behind it is what it prints. Statements
 * without a class run where the unit "north" is registered. Usage: GuideTest JAVA LIBRARIES DIRECTORY
 * PAGE...
 */
public final class GuideTest {
    private static final Pattern CLASS =
            Pattern.compile("^(?:public )?(?:final )?class (\\w+)", Pattern.MULTILINE);
    private static final String FENCE = "```";
    private static final int SECONDS = 60;

    private static final class Program {
        final String place;
        final String source;
        final String printed;

        Program(String place, String source, String printed) {
            this.place = place;
            this.source = source;
            this.printed = printed;
        }
    }

    private final String java;
    private final Path libraries;
    private final Path directory;
    /** By the names of their classes. */
    private final Map<String, Program> programs = new LinkedHashMap<>();
    private final List<String> failures = new ArrayList<>();

    private GuideTest(String[] arguments) {
        java = arguments[0];
        libraries = Paths.get(arguments[1]).toAbsolutePath();
        directory = Paths.get(arguments[2]).toAbsolutePath();
    }

    public static void main(String[] arguments) throws Exception {
        GuideTest test = new GuideTest(arguments);
        for (String page : Arrays.asList(arguments).subList(3, arguments.length)) {
            test.extract(Paths.get(page));
        }
        if (test.failures.isEmpty()) {
            test.compile();
        }
        if (test.failures.isEmpty()) {
            for (String name : test.programs.keySet()) {
                test.run(name);
            }
        }
        test.failures.forEach(failure -> System.out.println("FAILED: " + failure));
        System.out.printf("guide: %d programs on %d pages%n", test.programs.size(), arguments.length - 3);
        System.exit(test.failures.isEmpty() ? 0 : 1);
    }

    private static String textOf(Path file) throws IOException {
        return new String(Files.readAllBytes(file), StandardCharsets.UTF_8);
    }

    /** The index of the line that ends the block whose first line has this index. */
    private static int endOf(List<String> lines, int first) {
        int end = first;
        while (end < lines.size() && !lines.get(end).equals(FENCE)) {
            ++end;
        }
        return end;
    }

    private void extract(Path page) throws IOException {
        List<String> lines = Files.readAllLines(page);
        boolean found = false;
        for (int line = 0; line < lines.size(); ++line) {
            if (lines.get(line).equals(FENCE + "java")) {
                int end = endOf(lines, line + 1);
                int text = end + 1;
                while (text < lines.size() && !lines.get(text).startsWith(FENCE)) {
                    ++text;
                }
                String place = page + ":" + (line + 1);
                if (text == lines.size() || !lines.get(text).equals(FENCE + "text")) {
                    failures.add(place + ": no block of text says what the program prints");
                    return;
                }
                found = true;
                add(place, lines.subList(line + 1, end), lines.subList(text + 1, endOf(lines, text + 1)));
                line = end;
            }
        }
        if (!found) {
            failures.add(page + ": no program");
        }
    }

    private void add(String place, List<String> source, List<String> printed) {
        String text = String.join("\n", source) + "\n";
        Matcher named = CLASS.matcher(text);
        String name = "Statements" + programs.size();
        if (named.find()) {
            name = named.group(1);
        } else {
            text = "import tessaly.str.diskarray.*;\n"
                    + "public final class " + name + " {\n"
                    + "public static void main(String[] arguments) throws Exception {\n"
                    + "QVUnitParam north = new QVUnitParam();\n"
                    + "north.unit_name = \"north\";\n"
                    + "new DiskArrayUtilityJNI().QV_UnitAdd(north);\n" + text + "}\n}\n";
        }
        Program other = programs.put(name, new Program(place, text, String.join("\n", printed)));
        if (other != null) {
            failures.add(place + ": " + name + " is the class of " + other.place + " as well");
        }
    }

    private void compile() throws IOException {
        Path sources = Files.createDirectories(directory.resolve("sources"));
        List<String> command = new ArrayList<>(Arrays.asList("--release", "8", "-encoding", "UTF-8",
                "-Xlint:all,-options", "-Werror", "-classpath", libraries.resolve("quorvelj.jar").toString(),
                "-d", Files.createDirectories(directory.resolve("classes")).toString()));
        for (Map.Entry<String, Program> program : programs.entrySet()) {
            Path source = sources.resolve(program.getKey() + ".java");
            Files.write(source, program.getValue().source.getBytes(StandardCharsets.UTF_8));
            command.add(source.toString());
        }
        JavaCompiler compiler = ToolProvider.getSystemJavaCompiler();
        ByteArrayOutputStream said = new ByteArrayOutputStream();
        if (compiler.run(null, said, said, command.toArray(new String[0])) != 0) {
            failures.add(programs.entrySet().stream()
                    .map(program -> program.getKey() + " is " + program.getValue().place + "\n")
                    .collect(Collectors.joining()) + said.toString("UTF-8"));
        }
    }

    /** Each in a process of its own, since the simulator lives as long as one; in a directory of its own. */
    private void run(String name) throws IOException, InterruptedException {
        Program program = programs.get(name);
        Path work = Files.createDirectories(directory.resolve("run").resolve(name));
        File[] left = work.toFile().listFiles();
        for (File file : left == null ? new File[0] : left) {
            Files.delete(file.toPath());
        }
        Path printed = directory.resolve(name + ".out");
        Path errors = directory.resolve(name + ".err");
        Process process = new ProcessBuilder(java, "-XX:+UseSerialGC", "-XX:TieredStopAtLevel=1",
                "-Djava.library.path=" + libraries, "-classpath",
                libraries.resolve("quorvelj.jar") + File.pathSeparator + directory.resolve("classes"), name)
                .directory(work.toFile()).redirectOutput(printed.toFile()).redirectError(errors.toFile())
                .start();
        boolean ended = process.waitFor(SECONDS, TimeUnit.SECONDS);
        int status = ended ? process.exitValue() : -1;
        process.destroyForcibly();
        String got = textOf(printed).replace(System.lineSeparator(), "\n").replaceAll("\n$", "");
        if (status != 0 || !got.equals(program.printed)) {
            failures.add(program.place + ": " + (ended ? "exit status " + status : "no end")
                    + ", prints\n" + got + "\n" + textOf(errors) + "and the page says\n" + program.printed);
        }
    }
}
