package quorvelj.tools;

import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;

/** Writes docs/reference.md: every native method with its frame, and every record's layout. */
public final class Reference {
    private final Catalogue catalogue;
    private final StringBuilder out = new StringBuilder();

    private Reference(Catalogue catalogue) {
        this.catalogue = catalogue;
    }

    public static void main(String[] arguments) throws IOException {
        boolean compares = arguments.length == 3 && arguments[2].equals("--compare");
        if (arguments.length != 2 && !compares) {
            System.err.println("usage: Reference CATALOGUE FILE [--compare]");
            System.exit(2);
        }
        byte[] text =
                new Reference(Catalogue.read(Paths.get(arguments[0])))
                        .text()
                        .getBytes(StandardCharsets.UTF_8);
        Path file = Paths.get(arguments[1]);
        if (!compares) {
            Files.write(file, text);
        } else if (!Arrays.equals(text, Files.readAllBytes(file))) {
            System.err.println(file + " is not what the catalogue says; run make reference");
            System.exit(1);
        }
    }

    private String text() {
        line("# Reference");
        line("");
        line("Made from the catalogue by `make reference`.");
        line("");
        writeMethods();
        writeDepartures();
        writeRecords();
        return out.toString();
    }

    private void line(String text) {
        out.append(text).append('\n');
    }

    private void writeMethods() {
        line("## Native methods");
        line("");
        line(
                catalogue.methods.size()
                        + " methods of `DiskArrayUtilityJNI`. The frame follows from the result;"
                        + " the list behind the table says what departs from it.");
        line("");
        line(
                "An application with a class of its own declares them as they stand here, and loads"
                        + " `quorvel` before `quorvelj`.");
        line("");
        line("| method | arguments | result | declared in | library function | frame |");
        line("|---|---|---|---|---|---|");
        for (Catalogue.Method method : catalogue.methods.values()) {
            Catalogue.Function function = method.function;
            List<String> types = Catalogue.javaTypes(method.signature);
            String result = types.remove(types.size() - 1);
            line(
                    String.format(
                            "| `%s` | %s | %s | `%s` | %s%s | %s%s |",
                            method.name,
                            String.join(", ", types),
                            result,
                            function.header,
                            function.name.equals(method.name)
                                    ? "the same"
                                    : '`' + function.name + '`',
                            function.isAssumed ? ", arguments assumed" : "",
                            method.frame,
                            method.departs.isEmpty() ? "" : ", departs"));
        }
    }

    private void writeDepartures() {
        line("");
        line("### Departures");
        line("");
        for (Catalogue.Method method : catalogue.methods.values()) {
            if (!method.departs.isEmpty()) {
                line("- `" + method.name + "`: " + method.departs + ".");
            }
        }
    }

    private void writeRecords() {
        line("");
        line("## Records");
        line("");
        line(
                catalogue.records.size()
                        + " records. Each has the Java class of its name, but for a part: its"
                        + " fields are fields of the Java object around it. The numbers give the"
                        + " order in which Java's fields are filled. What is assumed is not"
                        + " confirmed by the library's own declarations.");
        String header = "";
        for (Catalogue.Record record : catalogue.records.values()) {
            if (!record.header.equals(header)) {
                header = record.header;
                line("");
                line("### arraylib/" + header);
            }
            writeRecord(record);
        }
    }

    private void writeRecord(Catalogue.Record record) {
        line("");
        line("#### " + record.name);
        line("");
        line(
                record.bytes
                        + " bytes"
                        + (record.isPart ? ", a part" : "")
                        + (record.layout.equals("assumed") ? ", assumed" : "")
                        + (record.members.isEmpty() ? ". No field is known." : ""));
        if (record.members.isEmpty()) {
            return;
        }
        line("");
        line("| offset | type | member | filled |");
        line("|---|---|---|---|");
        for (Catalogue.Member member : record.members) {
            line(
                    String.format(
                            "| %d | %s | `%s`%s | %s |",
                            member.offset,
                            type(member),
                            member.name,
                            record.layout.equals("partly") && member.isAssumed ? ", assumed" : "",
                            member.isReserved() ? "reserved" : member.filled));
        }
    }

    private String type(Catalogue.Member member) {
        boolean isText = member.kind.equals("text");
        StringBuilder type = new StringBuilder(member.kind);
        if (isText) {
            type.replace(0, type.length(), "char");
        } else if (member.kind.equals("bytes")) {
            type.replace(0, type.length(), "byte");
        } else if (catalogue.records.containsKey(member.kind)) {
            type.insert(0, '[').append("](#").append(member.kind.toLowerCase()).append(')');
        }
        for (int extent : member.extents) {
            type.append('[').append(extent).append(']');
        }
        return (isText ? type.append('[').append(member.bytes).append(']') : type).toString();
    }
}
