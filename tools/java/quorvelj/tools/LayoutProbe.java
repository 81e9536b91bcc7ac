package quorvelj.tools;

import java.io.ByteArrayOutputStream;
import java.io.IOException;
import java.io.InputStream;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;

/**
 * Writes the layout probe: a C program for each record, which compares its layout with that of the
 * library's headers, and scripts that compile and run them.
 */
public final class LayoutProbe {
    private final Path directory;

    private LayoutProbe(Path directory) {
        this.directory = directory;
    }

    public static void main(String[] arguments) throws IOException {
        if (arguments.length != 2) {
            System.err.println("usage: LayoutProbe CATALOGUE DIRECTORY");
            System.exit(2);
        }
        Catalogue catalogue = Catalogue.read(Paths.get(arguments[0]));
        Path directory = Files.createDirectories(Paths.get(arguments[1]));
        new LayoutProbe(directory).write(catalogue);
        System.out.println(
                catalogue.records.size()
                        + " records in "
                        + directory
                        + ": name the library's headers in names.h, then start run.sh or run.bat");
    }

    private void write(Catalogue catalogue) throws IOException {
        write("probe.h", resource("probe.h"));
        write("run.sh", resource("run.sh"));
        write("run.bat", resource("run.bat").replace("\n", "\r\n"));
        if (!Files.exists(directory.resolve("names.h"))) {
            write("names.h", resource("names.h"));
        }
        write("header.c", "#include \"names.h\"\n\nint main(void) { return 0; }\n");
        StringBuilder list = new StringBuilder();
        for (Catalogue.Record record : catalogue.records.values()) {
            long members = record.members.stream().filter(member -> !member.isReserved()).count();
            list.append(record.name + ' ' + members + ' ' + placeOf(record) + '\n');
            write(record.name + ".c", program(record));
        }
        write("records.txt", list.toString());
    }

    private void write(String name, String text) throws IOException {
        Files.write(directory.resolve(name), text.getBytes(StandardCharsets.UTF_8));
    }

    private static String resource(String name) throws IOException {
        try (InputStream in = LayoutProbe.class.getResourceAsStream("probe/" + name)) {
            ByteArrayOutputStream text = new ByteArrayOutputStream();
            byte[] buffer = new byte[8192];
            for (int count; (count = in.read(buffer)) > 0; ) {
                text.write(buffer, 0, count);
            }
            return text.toString("UTF-8");
        }
    }

    private static String placeOf(Catalogue.Record record) {
        return "arraylib/" + record.header + ':' + record.line;
    }

    /** `ONLY` compiles one member alone, `UNKNOWN_n` leaves the n-th out. */
    private static String program(Catalogue.Record record) {
        StringBuilder names = new StringBuilder(defaultName("RECORD_" + record.name, record.name));
        StringBuilder checks = new StringBuilder();
        int number = 0;
        for (Catalogue.Member member : record.members) {
            if (member.isReserved()) {
                continue;
            }
            ++number;
            String macro = "MEMBER_" + record.name + '_' + member.name;
            names.append(defaultName(macro, member.name));
            checks.append("#ifdef UNKNOWN_" + number + '\n')
                    .append("  probe_not_known(\"" + member.name + "\");\n")
                    .append("#elif !defined(ONLY) || ONLY == " + number + '\n')
                    .append("  CHECK(" + macro + ", \"" + member.name + "\", ")
                    .append(member.offset + ", " + member.allBytes() + ")\n")
                    .append("#endif\n");
        }
        return "#include \"names.h\"\n#include \"probe.h\"\n\n"
                + names
                + "#define RECORD RECORD_" + record.name + "\n\n"
                + "int main(void) {\n  int result;\n"
                + checks
                + "  result = probe_verdict(\"" + record.name + "\", \"" + placeOf(record) + "\", "
                + record.bytes + ", sizeof(RECORD));\n"
                + unknownBytes(record)
                + "  probe_end();\n"
                + "#if defined(FURTHER_" + record.name + ") && !defined(ONLY)\n"
                + "  FURTHER_" + record.name + "\n#endif\n"
                + "  return result;\n}\n";
    }

    private static String defaultName(String macro, String name) {
        return "#ifndef " + macro + "\n#define " + macro + ' ' + name + "\n#endif\n";
    }

    /** The bytes between those that Java's fields explain. */
    private static String unknownBytes(Catalogue.Record record) {
        StringBuilder calls = new StringBuilder();
        long end = 0;
        for (Catalogue.Member member : record.members) {
            if (!member.isReserved()) {
                calls.append(range(end, member.offset));
                end = member.offset + member.allBytes();
            }
        }
        return calls.append(range(end, record.bytes)).toString();
    }

    private static String range(long start, long end) {
        return start == end ? "" : "  probe_bytes(" + start + ", " + (end - 1) + ");\n";
    }
}
