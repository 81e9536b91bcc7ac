package quorvelj.benchmarks;

import java.io.PrintWriter;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.LinkedHashSet;
import java.util.List;
import java.util.Set;
import quorvelj.tools.Catalogue;

/** Writes the library's records as structures of JNA: each member as it lies there, arrays flat. */
public final class WriteStructures {
    private static final String[] ROOTS = {
        "QVSessionInfo", "LogicalUnit", "PairInfo", "ArrayAllInformation"
    };

    private final Catalogue catalogue;
    private final PrintWriter out;
    private final Set<String> written = new LinkedHashSet<>();

    private WriteStructures(Catalogue catalogue, PrintWriter out) {
        this.catalogue = catalogue;
        this.out = out;
    }

    /** Arguments: the catalogue, and the file to write. */
    public static void main(String[] arguments) throws Exception {
        try (PrintWriter out = new PrintWriter(arguments[1], "UTF-8")) {
            out.println("package quorvelj.benchmarks;\n");
            out.println("import com.sun.jna.Pointer;\nimport com.sun.jna.Structure;\n");
            out.println("public final class Structures {");
            WriteStructures writer =
                    new WriteStructures(Catalogue.read(Paths.get(arguments[0])), out);
            for (String root : ROOTS) {
                writer.write(catalogueRecord(writer.catalogue, root));
            }
            out.println("}");
        }
    }

    private static Catalogue.Record catalogueRecord(Catalogue catalogue, String name) {
        Catalogue.Record record = catalogue.records.get(name);
        if (record == null) {
            throw new IllegalArgumentException("no record " + name);
        }
        return record;
    }

    private void write(Catalogue.Record record) {
        if (!written.add(record.name)) {
            return;
        }
        List<String> names = new ArrayList<>();
        List<String> fields = new ArrayList<>();
        for (Catalogue.Member member : record.members) {
            names.add('"' + member.name + '"');
            fields.add(field(member));
        }
        if (record.members.isEmpty()) {
            names.add("\"unmapped\"");
            fields.add("byte[] unmapped = new byte[" + record.bytes + "]");
        }
        out.println("@Structure.FieldOrder({" + String.join(", ", names) + "})");
        out.println("public static class " + record.name + " extends Structure {");
        out.println("public static final long BYTES = " + record.bytes + "L;");
        for (String field : fields) {
            out.println("public " + field + ";");
        }
        out.println("public " + record.name + "() {}");
        out.println("public " + record.name + "(Pointer memory) { super(memory); }");
        out.println("}");
        for (Catalogue.Member member : record.members) {
            Catalogue.Record element = catalogue.records.get(member.kind);
            if (element != null) {
                write(element);
            }
        }
    }

    private static String field(Catalogue.Member member) {
        long count = 1;
        for (int extent : member.extents) {
            count *= extent;
        }
        boolean isArray = member.extents.length > 0;
        String type = member.kind;
        switch (member.kind) {
            case "text":
                // Its bytes are its innermost dimension.
                count *= member.bytes;
                isArray = true;
                type = "byte";
                break;
            case "bytes":
            case "int8":
            case "uint8":
                type = "byte";
                break;
            case "int32":
                type = "int";
                break;
            default:
                break;
        }
        return isArray
                ? type + "[] " + member.name + " = new " + type + '[' + count + ']'
                : type + ' ' + member.name;
    }
}
