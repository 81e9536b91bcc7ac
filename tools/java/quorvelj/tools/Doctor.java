package quorvelj.tools;

import java.io.File;
import java.io.IOException;
import java.io.PrintStream;
import java.lang.reflect.Field;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.LinkedHashSet;
import java.util.List;
import java.util.Locale;
import java.util.Map;
import java.util.Set;
import java.util.TreeMap;
import java.util.TreeSet;

/**
 * Says what does not fit between an application, the bridge, the library and the JVM, before the
 * first call. Everything that it compares with comes from the catalogue.
 */
final class Doctor {
    static final String USAGE =
            "doctor [--classes JARS] [--natives DIRECTORY] [--methods NAMES | --used] [--construct]\n"
                + "\n"
                + "  --classes JARS       the application's jars, as a class path has them;\n"
                + "                       without it this JVM's own class path\n"
                + "  --natives DIRECTORY  where the bridge's library and quorvel are;\n"
                + "                       without it the directories of java.library.path\n"
                + "  --methods NAMES      only what these methods need: QV_GetUnitCount,QV_UnitAdd\n"
                + "  --used               only what the methods need that the application calls\n"
                + "  --construct          also runs constructors that call other code, of the\n"
                + "                       classes that must come with arrays\n"
                + "\n"
                + "No class is initialised and no library loaded, but for the constructors of classes\n"
                + "that must come with arrays, where they do nothing else.\n"
                + "Exit status: 0 nothing fails, 1 something fails, 2 these arguments are wrong.\n";

    private static final int MOST_METHODS = 2;

    /** What the version of a class file has more than Java's. */
    private static final int FIRST_VERSION = 44;

    private final Catalogue catalogue;
    private final Application application;
    private final Report report;
    private final boolean constructs;

    /** The methods that are looked at. */
    private final Set<String> methods;

    /** The methods that return, or take, objects of a class or of classes that hold it. */
    private final Map<String, Set<String>> built = new TreeMap<>();

    private final Map<String, Set<String>> read = new TreeMap<>();

    /** The application's class of the native methods; null where it has none. */
    private final ClassFile natives;

    private Doctor(
            Catalogue catalogue,
            Application application,
            Set<String> methods,
            boolean constructs,
            PrintStream out) {
        this.catalogue = catalogue;
        this.application = application;
        this.methods = methods;
        this.constructs = constructs;
        report = new Report(out);
        natives = nativeClass();
        methods.retainAll(declared());
        for (String method : methods) {
            String signature = catalogue.methods.get(method).signature;
            int end = signature.indexOf(')');
            for (String argument : classesIn(signature.substring(0, end))) {
                use(argument, method, read);
            }
            for (String result : classesIn(signature.substring(end))) {
                use(result, method, built);
            }
        }
    }

    /** Runs the command and returns the exit status. */
    static int run(List<String> arguments, PrintStream out) throws IOException, Main.Misuse {
        long start = System.nanoTime();
        List<File> classes = paths(System.getProperty("java.class.path"));
        List<File> natives = paths(System.getProperty("java.library.path"));
        String names = "";
        boolean used = false;
        boolean constructs = false;
        for (int index = 0; index < arguments.size(); ++index) {
            String key = arguments.get(index);
            if (key.equals("--used")) {
                used = true;
                continue;
            }
            if (key.equals("--construct")) {
                constructs = true;
                continue;
            }
            if (!Arrays.asList("--classes", "--natives", "--methods").contains(key)) {
                throw new Main.Misuse("unknown: " + key);
            }
            if (++index == arguments.size()) {
                throw new Main.Misuse(key + " without a value");
            }
            String value = arguments.get(index);
            if (key.equals("--methods")) {
                names = value;
            } else if (key.equals("--natives")) {
                natives = Arrays.asList(new File(value));
                if (!natives.get(0).isDirectory()) {
                    throw new Main.Misuse(value + " is no directory");
                }
            } else {
                classes = paths(value);
                for (File file : classes) {
                    if (file.isDirectory()) {
                        throw new Main.Misuse(file + " is a directory, not a jar");
                    }
                }
            }
        }
        classes.removeIf(file -> arguments.indexOf("--classes") < 0 && !file.exists());
        Catalogue catalogue = Catalogue.own();
        try (Application application = new Application(classes)) {
            Set<String> methods = new LinkedHashSet<>(catalogue.methods.keySet());
            if (used) {
                methods.retainAll(application.calledMethods());
            }
            if (!names.isEmpty()) {
                List<String> wanted = Arrays.asList(names.split(","));
                for (String name : wanted) {
                    if (!catalogue.methods.containsKey(name)) {
                        throw new Main.Misuse("no native method: " + name);
                    }
                }
                methods.retainAll(wanted);
            }
            Doctor doctor = new Doctor(catalogue, application, methods, constructs, out);
            doctor.examine(natives);
            int failures = doctor.report.failures();
            out.println(
                    String.format(
                            Locale.ROOT,
                            "%.1f s, %s",
                            (System.nanoTime() - start) / 1e9,
                            failures == 0
                                    ? "no problem"
                                    : failures + (failures == 1 ? " problem" : " problems")));
            return failures == 0 ? 0 : 1;
        }
    }

    private static List<File> paths(String text) {
        List<File> files = new ArrayList<>();
        for (String name : text.split(File.pathSeparator)) {
            if (!name.isEmpty()) {
                files.add(new File(name));
            }
        }
        return files;
    }

    private void examine(List<File> directories) throws IOException {
        boolean loadsQuorvelFirst = natives != null && natives.texts.contains("quorvel");
        new Libraries(catalogue, report, loadsQuorvelFirst).examine(directories);
        if (natives == null) {
            report.heading("methods");
            report.fail(
                    "no class "
                            + catalogue.nativeClass.replace('/', '.')
                            + " that can be read: give the application's jars with --classes");
            return;
        }
        examineMethods();
        examineClasses();
    }

    // Which methods need a class

    private static List<String> classesIn(String signature) {
        List<String> names = new ArrayList<>();
        for (int at = signature.indexOf('L'); at >= 0; at = signature.indexOf('L', at)) {
            int end = signature.indexOf(';', at);
            names.add(signature.substring(at + 1, end));
            at = end;
        }
        return names;
    }

    private void use(String type, String method, Map<String, Set<String>> uses) {
        if (catalogue.classes.containsKey(type)
                && uses.computeIfAbsent(type, any -> new LinkedHashSet<>()).add(method)) {
            for (String signature : catalogue.classes.get(type).fields.values()) {
                for (String inside : classesIn(signature)) {
                    use(inside, method, uses);
                }
            }
        }
    }

    /** The methods as a list of few. */
    private static String list(Set<String> names) {
        List<String> first = new ArrayList<>(names);
        int more = first.size() - MOST_METHODS;
        return more <= 0
                ? String.join(", ", first)
                : String.join(", ", first.subList(0, MOST_METHODS)) + " and " + more + " more";
    }

    // Native methods

    private ClassFile nativeClass() {
        try {
            return application.find(catalogue.nativeClass);
        } catch (Application.NoClass e) {
            return null;
        }
    }

    private Set<String> declared() {
        Set<String> names = new LinkedHashSet<>();
        if (natives != null) {
            for (ClassFile.Member method : natives.methods) {
                if (method.isNative()) {
                    names.add(method.name);
                }
            }
        }
        return names;
    }

    private void examineMethods() {
        report.heading("methods");
        report.note(
                catalogue.methods.size()
                        + " native methods, "
                        + declared().size()
                        + " declared by the application"
                        + (methods.size() == declared().size()
                                ? ""
                                : ", " + methods.size() + " looked at"));
        for (ClassFile.Member method : natives.methods) {
            Catalogue.Method known = catalogue.methods.get(method.name);
            if (!method.isNative()) {
                continue;
            }
            if (known == null) {
                report.fail(
                        method.name
                                + "  declared, not in the bridge: UnsatisfiedLinkError at the"
                                + " call");
            } else if (methods.contains(method.name)
                    && !known.signature.equals(method.signature)) {
                report.fail(
                        method.name
                                + "  declared "
                                + shown(method.signature)
                                + ", built for "
                                + shown(known.signature));
            }
        }
    }

    /** A signature as Java writes it: `(String, int) void`. */
    private static String shown(String signature) {
        List<String> types = Catalogue.javaTypes(signature);
        String result = types.remove(types.size() - 1);
        return "(" + String.join(", ", types) + ") " + result;
    }

    // Classes

    private void examineClasses() {
        report.heading("classes");
        List<String> problems = new ArrayList<>();
        List<String> untried = new ArrayList<>();
        int looked = 0;
        int agreeing = 0;
        for (Catalogue.JavaClass wanted : catalogue.classes.values()) {
            if (!wanted.isThrown
                    && !built.containsKey(wanted.name)
                    && !read.containsKey(wanted.name)) {
                continue;
            }
            int before = problems.size();
            examine(wanted, problems, untried);
            ++looked;
            agreeing += problems.size() == before ? 1 : 0;
        }
        String summary = agreeing + " of " + looked + " agree";
        if (problems.isEmpty()) {
            report.ok(summary);
        } else {
            report.note(summary);
        }
        problems.forEach(report::fail);
        if (!untried.isEmpty()) {
            report.note(
                    "constructors that call other code were not run: "
                            + String.join(", ", untried)
                            + "; --construct runs them");
        }
    }

    private void examine(
            Catalogue.JavaClass wanted, List<String> problems, List<String> untried) {
        List<String> own = new ArrayList<>();
        List<String> texts = new ArrayList<>();
        List<String> arrays = new ArrayList<>();
        String name = wanted.simpleName();
        try {
            ClassFile type = application.find(wanted.name);
            int newest = (int) Double.parseDouble(System.getProperty("java.class.version"));
            if (type.majorVersion > newest) {
                own.add(
                        name
                                + "  is for Java "
                                + (type.majorVersion - FIRST_VERSION)
                                + ", this JVM is "
                                + (newest - FIRST_VERSION));
            }
            if (wanted.isThrown && !application.isA(type, "java/lang/Throwable")) {
                own.add(name + "  is no Throwable");
            }
            if (wanted.isThrown || built.containsKey(wanted.name)) {
                examineConstructor(wanted, type, own);
                if (own.isEmpty() && !wanted.isThrown) {
                    examineArrays(wanted, type, arrays, untried);
                }
            }
            for (Map.Entry<String, String> field : wanted.fields.entrySet()) {
                boolean isText = field.getValue().equals("Ljava/lang/String;");
                examineField(
                        wanted, type, field.getKey(), field.getValue(), isText ? texts : own);
            }
        } catch (Application.NoClass e) {
            own.add(name + "  " + e.getMessage());
        }
        addProblems(problems, own, consequences(wanted, "2817", true));
        addProblems(problems, arrays, consequences(wanted, "2817", false));
        // A text that cannot be stored does not end the building of an object.
        addProblems(problems, texts, consequences(wanted, "2817 or NoSuchFieldError", true));
    }

    /** The problems, the first with what follows from them. */
    private static void addProblems(List<String> problems, List<String> own, String consequences) {
        for (int index = 0; index < own.size(); ++index) {
            problems.add(own.get(index) + (index == 0 ? consequences : ""));
        }
    }

    /** What the methods do that need what a class lacks. */
    private String consequences(Catalogue.JavaClass wanted, String thrown, boolean isTaken) {
        if (wanted.isThrown) {
            return ": codes will be lost";
        }
        List<String> all = new ArrayList<>();
        if (built.containsKey(wanted.name)) {
            all.add(list(built.get(wanted.name)) + " will throw " + thrown);
        }
        if (isTaken && read.containsKey(wanted.name)) {
            all.add(
                    list(read.get(wanted.name))
                            + " will hand over a part and throw NoSuchFieldError or the library's"
                            + " code");
        }
        return ": " + String.join("; ", all);
    }

    private static void examineConstructor(
            Catalogue.JavaClass wanted, ClassFile type, List<String> problems) {
        String name = wanted.simpleName();
        Set<String> found = new TreeSet<>();
        for (ClassFile.Member method : type.methods) {
            if (method.name.equals("<init>")) {
                found.add(parameters(method.signature));
            }
        }
        String parameters = parameters(wanted.constructor);
        if (!found.contains(parameters)) {
            problems.add(
                    name
                            + "  has "
                            + (found.isEmpty() ? "no constructor" : String.join(", ", found))
                            + ", wanted "
                            + parameters);
        } else if (type.isAbstract) {
            problems.add(name + "  is abstract");
        }
    }

    private static String parameters(String signature) {
        List<String> types = Catalogue.javaTypes(signature);
        return "(" + String.join(", ", types.subList(0, types.size() - 1)) + ")";
    }

    private void examineField(
            Catalogue.JavaClass wanted,
            ClassFile type,
            String field,
            String signature,
            List<String> problems)
            throws Application.NoClass {
        if (application.field(type, field, signature) != null) {
            return;
        }
        ClassFile.Member other = application.field(type, field);
        problems.add(
                wanted.simpleName()
                        + "."
                        + field
                        + (other == null
                                ? "  missing"
                                : (other.isStatic() ? "  is static " : "  is ")
                                        + Catalogue.javaType(other.signature))
                        + ", wanted "
                        + Catalogue.javaType(signature));
    }

    // Arrays that a new object must already hold

    private void examineArrays(
            Catalogue.JavaClass wanted,
            ClassFile type,
            List<String> problems,
            List<String> untried)
            throws Application.NoClass {
        Map<String, Integer> lengths = new TreeMap<>();
        addByteArrays(catalogue.records.get(wanted.simpleName()), lengths);
        lengths.keySet().removeIf(field -> !wanted.fields.containsKey(field));
        if (lengths.isEmpty()) {
            return;
        }
        String name = wanted.simpleName() + "()";
        if (!constructs && !application.isHarmless(type)) {
            untried.add(name);
            return;
        }
        Object object;
        try {
            object = application.construct(type);
        } catch (Application.NoClass e) {
            problems.add(name + "  " + e.getMessage());
            return;
        }
        for (Map.Entry<String, Integer> entry : lengths.entrySet()) {
            byte[] array = valueOf(object, entry.getKey());
            if (array == null || array.length < entry.getValue()) {
                problems.add(
                        name
                                + "  leaves "
                                + entry.getKey()
                                + (array == null ? " null" : " a byte[" + array.length + "]")
                                + ", wanted byte["
                                + entry.getValue()
                                + "]");
            }
        }
    }

    private void addByteArrays(Catalogue.Record record, Map<String, Integer> lengths) {
        for (Catalogue.Member member : record.members) {
            if (member.kind.equals("bytes") && member.extents.length == 1) {
                lengths.put(member.name, member.extents[0]);
            } else if (catalogue.records.containsKey(member.kind)
                    && catalogue.records.get(member.kind).isPart) {
                addByteArrays(catalogue.records.get(member.kind), lengths);
            }
        }
    }

    /** The value of the nearest field of this name that is a byte array; null where it is none. */
    private static byte[] valueOf(Object object, String field) {
        for (Class<?> type = object.getClass(); type != null; type = type.getSuperclass()) {
            for (Field declared : type.getDeclaredFields()) {
                if (declared.getName().equals(field) && declared.getType() == byte[].class) {
                    try {
                        declared.setAccessible(true);
                        return (byte[]) declared.get(object);
                    } catch (IllegalAccessException e) {
                        return null;
                    }
                }
            }
        }
        return null;
    }
}
