import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.Locale;
import java.util.Map;
import java.util.TreeMap;
import java.util.TreeSet;
import java.util.regex.Matcher;
import java.util.regex.Pattern;
import quorvelj.tools.Catalogue;

/**
 * Compares docs/open-points.md and the Javadoc with what the catalogue marks as assumed, and with the
 * bytes that reach the library without a field. Usage: OpenPoints CATALOGUE SOURCES
 */
public final class OpenPoints {
    private static final Pattern CODE = Pattern.compile("`([^`]+)`");
    private static final Pattern NUMBER = Pattern.compile("\\d+");

    private final Catalogue catalogue;
    private final String page;
    private final Path javaClasses;
    private int differences;

    private OpenPoints(Path catalogue, Path sources) throws IOException {
        this.catalogue = Catalogue.read(catalogue);
        page = textOf(sources.resolve("docs/open-points.md"));
        javaClasses = sources.resolve("java/tessaly/str/diskarray");
    }

    public static void main(String[] arguments) throws IOException {
        OpenPoints points = new OpenPoints(Paths.get(arguments[0]), Paths.get(arguments[1]));
        points.compareRecords();
        points.compareFunctions();
        points.compareBytesWithoutField();
        System.exit(points.differences == 0 ? 0 : 1);
    }

    private static String textOf(Path file) throws IOException {
        return new String(Files.readAllBytes(file), StandardCharsets.UTF_8);
    }

    private void expect(boolean holds, String difference) {
        if (!holds) {
            System.err.println(difference);
            ++differences;
        }
    }

    /** What is written as code in the first cells of the tables with this head. */
    private TreeSet<String> namedIn(String head) {
        TreeSet<String> names = new TreeSet<>();
        boolean inTable = false;
        for (String line : page.split("\n")) {
            inTable = line.startsWith("|") && (inTable || line.matches(head));
            if (inTable) {
                names.addAll(codeIn(line.split("\\|")[1]));
            }
        }
        return names;
    }

    private static List<String> codeIn(String text) {
        List<String> names = new ArrayList<>();
        for (Matcher code = CODE.matcher(text); code.find();) {
            names.add(code.group(1));
        }
        return names;
    }

    /** A record is assumed, named in a table of layouts, and called so by its class, or none of it. */
    private void compareRecords() throws IOException {
        TreeSet<String> named = namedIn("\\| (record|record or function|what) \\|.* assumed \\|");
        for (Catalogue.Record record : catalogue.records.values()) {
            boolean isAssumed = !record.layout.equals("confirmed");
            expect(isAssumed == named.contains(record.name), record.name + " is " + record.layout
                    + (isAssumed ? ", and in no table" : ", but in a table") + " of docs/open-points.md");
            if (!record.isPart) {
                String javadoc = textOf(javaClasses.resolve(record.name + ".java"));
                expect(isAssumed == javadoc.matches("(?s).*( is|Layout) assumed\\.\\s.*"),
                        record.name + " is " + record.layout + "; its Javadoc says otherwise");
            }
        }
    }

    private void compareFunctions() {
        List<String> named = codeIn(page);
        for (Catalogue.Function function : catalogue.functions.values()) {
            expect(!function.isAssumed || named.contains(function.name),
                    function.name + " is assumed, and not in docs/open-points.md");
        }
    }

    /** The bytes of a record that no field holds; padding is none. */
    private long bytesWithoutField(String name) {
        Catalogue.Record record = catalogue.records.get(name);
        long bytes = record.members.isEmpty() ? record.bytes : 0;
        for (Catalogue.Member member : record.members) {
            if (member.isReserved()) {
                bytes += member.allBytes();
            } else if (catalogue.records.containsKey(member.kind)) {
                bytes += member.allBytes() / member.bytes * bytesWithoutField(member.kind);
            }
        }
        return bytes;
    }

    private void compareBytesWithoutField() throws IOException {
        Map<String, String> handedOver = new TreeMap<>();
        Map<String, Long> inAll = new TreeMap<>();
        for (Catalogue.Function function : catalogue.functions.values()) {
            for (String parameter : function.parameters) {
                String[] words = parameter.split(" ");
                if (parameter.startsWith("record in ") && bytesWithoutField(words[2]) > 0) {
                    handedOver.put(function.name, words[2] + " " + bytesWithoutField(words[2]));
                    inAll.merge(function.name, bytesWithoutField(words[2]), Long::sum);
                }
            }
        }
        Map<String, String> listed = new TreeMap<>();
        String section = page.substring(page.indexOf("## Bytes without a field"));
        for (String line : section.substring(0, section.indexOf("\n## ")).split("\n")) {
            String[] cells = line.split("\\|");
            if (cells.length == 4 && cells[1].contains("`")) {
                Matcher number = NUMBER.matcher(cells[3]);
                expect(number.find(), "no number of bytes: " + line);
                codeIn(cells[1]).forEach(method ->
                        listed.put(method, codeIn(cells[2]).get(0) + " " + number.group()));
            }
        }
        expect(handedOver.equals(listed), "bytes without a field are handed over by\n" + handedOver
                + "\nand docs/open-points.md lists\n" + listed);
        // A declaration ends before an empty line; its Javadoc has semicolons of its own.
        String[] methods =
                textOf(javaClasses.resolve("DiskArrayUtilityJNI.java")).split(";\\s*\n\\s*\n");
        for (String method : handedOver.keySet()) {
            expect(Arrays.stream(methods).anyMatch(text -> text.contains(" " + method + "(")
                            && text.contains(String.format(
                                    Locale.ROOT, " %,d bytes have no field", inAll.get(method)))),
                    "the Javadoc of " + method + " does not say that " + inAll.get(method)
                            + " bytes have no field");
        }
    }
}
