package quorvelj.tools;

import java.io.BufferedReader;
import java.io.IOException;
import java.io.InputStream;
import java.io.InputStreamReader;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.HashMap;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.stream.Collectors;

/** What the bridge knows of itself, read from the text that docs/catalogue.md describes. */
public final class Catalogue {
    private static final String FIRST_LINE = "quorvelj-catalogue 1";
    private static final Map<Character, String> PRIMITIVES = primitives();

    private static Catalogue own;

    /** A record of the library. */
    public static final class Record {
        public final String name;
        public final String header;
        public final int line;
        public final long bytes;

        /** Whether it has no Java class of its own. */
        public final boolean isPart;

        /** "assumed", "partly" or "confirmed". */
        public final String layout;

        /** In the order of their offsets. */
        public final List<Member> members = new ArrayList<>();

        /** Between the members, and all bytes of a record without one. */
        public final List<Gap> gaps = new ArrayList<>();

        Record(String[] words) {
            name = words[1];
            header = words[2];
            line = Integer.parseInt(words[3]);
            bytes = Long.parseLong(words[4]);
            isPart = words[5].equals("part");
            layout = words[6];
        }
    }

    /** A member of a record. */
    public static final class Member {
        public final long offset;

        /** Of one element. */
        public final long bytes;

        /** A kind of number, "text", "bytes", or the name of a record. */
        public final String kind;

        public final int[] extents;

        /** The place in the order in which Java's fields are filled; 0 for a reserved member. */
        public final int filled;

        public final String name;
        public final boolean isAssumed;

        /** Whether a token stands for it in a recording. */
        public final boolean isSecret;

        Member(String[] words) {
            offset = Long.parseLong(words[1]);
            bytes = Long.parseLong(words[2]);
            kind = words[3];
            String[] lengths = words[4].equals("-") ? new String[0] : words[4].split("x");
            extents = new int[lengths.length];
            for (int dimension = 0; dimension < extents.length; ++dimension) {
                extents[dimension] = Integer.parseInt(lengths[dimension]);
            }
            filled = words[5].equals("reserved") ? 0 : Integer.parseInt(words[5]);
            name = words[6];
            isAssumed = words[7].equals("assumed");
            isSecret = words.length > 8;
        }

        public boolean isReserved() {
            return filled == 0;
        }

        /** Of all elements. */
        public long allBytes() {
            long all = bytes;
            for (int extent : extents) {
                all *= extent;
            }
            return all;
        }
    }

    /** Bytes of a record that no member covers. */
    public static final class Gap {
        public final long offset;
        public final long bytes;

        Gap(String[] words) {
            offset = Long.parseLong(words[1]);
            bytes = Long.parseLong(words[2]);
        }
    }

    /** A Java class that the bridge handles. */
    public static final class JavaClass {
        /** Slash form. */
        public final String name;

        public final boolean isBuilt;
        public final boolean isRead;

        /** Whether the bridge throws it. */
        public final boolean isThrown;

        public final String constructor;

        /** The JNI signatures by the names. */
        public final Map<String, String> fields = new LinkedHashMap<>();

        JavaClass(String[] words) {
            name = words[1];
            isBuilt = words[2].equals("built") || words[2].equals("both");
            isRead = words[2].equals("read") || words[2].equals("both");
            isThrown = words[2].equals("thrown");
            constructor = words[3];
        }

        /** Without the package; that of its record, where it has one. */
        public String simpleName() {
            return name.substring(name.lastIndexOf('/') + 1);
        }
    }

    /** A function of the library. */
    public static final class Function {
        public final String name;
        public final String header;
        public final boolean isAssumed;

        /** As the catalogue has them: "record in QVSessionInfo". */
        public final List<String> parameters = new ArrayList<>();

        Function(String[] words) {
            name = words[1];
            header = words[2];
            isAssumed = words[3].equals("assumed");
        }
    }

    /** A native method. */
    public static final class Method {
        public final String name;

        /** The decorated name on Windows. */
        public final String symbol;

        public final String signature;

        /** "query", "update" or "value". */
        public final String frame;

        public final Function function;

        /** What it does otherwise than its frame; "" for nothing. */
        public String departs = "";

        Method(String[] words, Function function) {
            name = words[1];
            symbol = words[2];
            signature = words[3];
            frame = words[4];
            this.function = function;
        }
    }

    /** The bridge's. */
    public final String version;

    /** The class of the native methods, in slash form. */
    public final String nativeClass;

    /** By their names, in the order of the catalogue. */
    public final Map<String, Record> records = new LinkedHashMap<>();

    public final Map<String, JavaClass> classes = new LinkedHashMap<>();
    public final Map<String, Function> functions = new LinkedHashMap<>();
    public final Map<String, Method> methods = new LinkedHashMap<>();

    private Catalogue(List<String> lines) {
        if (lines.size() < 2 || !lines.get(0).equals(FIRST_LINE)) {
            throw new IllegalArgumentException("not a catalogue: it begins with " + FIRST_LINE);
        }
        String[] bridge = lines.get(1).split(" ");
        version = bridge[1];
        nativeClass = bridge[2];
        Record record = null;
        JavaClass javaClass = null;
        Function function = null;
        Method method = null;
        for (String line : lines.subList(2, lines.size())) {
            String[] words = line.split(" ");
            String rest = line.substring(words[0].length() + 1);
            switch (words[0]) {
                case "record":
                    record = new Record(words);
                    records.put(record.name, record);
                    break;
                case "member":
                    record.members.add(new Member(words));
                    break;
                case "padding":
                case "unmapped":
                    record.gaps.add(new Gap(words));
                    break;
                case "class":
                    javaClass = new JavaClass(words);
                    classes.put(javaClass.name, javaClass);
                    break;
                case "field":
                    javaClass.fields.put(words[1], words[2]);
                    break;
                case "function":
                    function = new Function(words);
                    functions.put(function.name, function);
                    break;
                case "parameter":
                    function.parameters.add(rest);
                    break;
                case "method":
                    method = new Method(words, functions.get(words[5]));
                    methods.put(method.name, method);
                    break;
                case "departs":
                    method.departs = rest;
                    break;
                default:
                    throw new IllegalArgumentException("no line of a catalogue: " + line);
            }
        }
    }

    /** Reads a catalogue from a file. */
    public static Catalogue read(Path file) throws IOException {
        return new Catalogue(Files.readAllLines(file, StandardCharsets.UTF_8));
    }

    /** That of the bridge with which this program was delivered; read once. */
    public static synchronized Catalogue own() throws IOException {
        if (own == null) {
            own = readOwn();
        }
        return own;
    }

    private static Catalogue readOwn() throws IOException {
        try (InputStream in = Catalogue.class.getResourceAsStream("catalogue.txt")) {
            if (in == null) {
                throw new IOException("this jar has no catalogue");
            }
            BufferedReader reader =
                    new BufferedReader(new InputStreamReader(in, StandardCharsets.UTF_8));
            return new Catalogue(reader.lines().collect(Collectors.toList()));
        }
    }

    /** The types of a JNI signature as Java writes them, without packages; the result last. */
    public static List<String> javaTypes(String signature) {
        List<String> types = new ArrayList<>();
        String brackets = "";
        for (int at = 1; at < signature.length(); ++at) {
            char letter = signature.charAt(at);
            if (letter == ')') {
                continue;
            }
            if (letter == '[') {
                brackets += "[]";
                continue;
            }
            String name = PRIMITIVES.get(letter);
            if (letter == 'L') {
                int end = signature.indexOf(';', at);
                name = signature.substring(signature.lastIndexOf('/', end) + 1, end);
                at = end;
            }
            types.add(name + brackets);
            brackets = "";
        }
        return types;
    }

    /** The type of a JNI signature as Java writes it, without packages. */
    public static String javaType(String signature) {
        return javaTypes('(' + signature).get(0);
    }

    private static Map<Character, String> primitives() {
        Map<Character, String> names = new HashMap<>();
        for (String entry : "Z boolean;B byte;C char;S short;I int;J long;F float;D double;V void".split(";")) {
            names.put(entry.charAt(0), entry.substring(2));
        }
        return names;
    }
}
