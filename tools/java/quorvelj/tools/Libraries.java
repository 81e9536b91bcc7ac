package quorvelj.tools;

import java.io.File;
import java.io.IOException;
import java.util.ArrayList;
import java.util.Collections;
import java.util.List;
import java.util.Locale;
import java.util.Set;
import java.util.TreeSet;

/** The doctor's look at the JVM, the bridge's library and quorvel. */
final class Libraries {
    private static final int MOST_NAMES = 10;

    private final Catalogue catalogue;
    private final Report report;

    /** Whether the application's own class loads quorvel before the bridge. */
    private final boolean loadsQuorvelFirst;

    private final String system = System.getProperty("os.name");
    private final boolean onWindows = system.startsWith("Windows");
    private final int bits =
            Integer.parseInt(
                    System.getProperty(
                            "sun.arch.data.model",
                            System.getProperty("os.arch").endsWith("64") ? "64" : "32"));

    Libraries(Catalogue catalogue, Report report, boolean loadsQuorvelFirst) {
        this.catalogue = catalogue;
        this.report = report;
        this.loadsQuorvelFirst = loadsQuorvelFirst;
    }

    void examine(List<File> directories) throws IOException {
        report.heading("JVM");
        report.note(System.getProperty("java.version") + ", " + bits + "-bit, " + system);
        report.heading("natives");
        File bridgeFile = find(directories);
        if (bridgeFile == null) {
            report.fail("no quorvelj.dll and no libquorvelj.so in " + shown(directories));
            return;
        }
        LibraryFile bridge = read(bridgeFile);
        LibraryFile quorvel = read(quorvelFor(bridgeFile, directories));
        if (bridge != null) {
            examineFit(bridge, quorvel);
            examineSearch(bridge);
            examineExports(bridge);
            if (quorvel != null) {
                examineFunctions(bridge, quorvel);
            }
        }
    }

    /** The bridge's library: that for this system first. */
    private File find(List<File> directories) {
        List<String> names = new ArrayList<>();
        names.add("libquorvelj.so");
        names.add("quorvelj.dll");
        if (onWindows) {
            Collections.reverse(names);
        }
        for (String name : names) {
            for (File directory : directories) {
                File file = new File(directory, name);
                if (file.exists()) {
                    return file;
                }
            }
        }
        return null;
    }

    /** Its quorvel: the one beside it, or the first that an application finds that loads it itself. */
    private File quorvelFor(File bridge, List<File> directories) {
        String name = bridge.getName().replace("quorvelj", "quorvel");
        for (File directory : directories) {
            File file = new File(directory, name);
            if (loadsQuorvelFirst && file.exists()) {
                return file;
            }
        }
        return new File(bridge.getParentFile(), name);
    }

    private static String shown(List<File> directories) {
        List<String> names = new ArrayList<>();
        for (File directory : directories) {
            names.add(directory.getPath());
        }
        return names.isEmpty() ? "no directory" : String.join(", ", names);
    }

    private LibraryFile read(File file) throws IOException {
        try {
            LibraryFile library = LibraryFile.read(file.toPath());
            report.ok(file + " " + (library.version + ", ").replaceAll("^, ", "") + library.machine);
            return library;
        } catch (LibraryFile.NotALibrary e) {
            report.fail(file + " " + e.getMessage());
            return null;
        }
    }

    /** Widths and versions. */
    private void examineFit(LibraryFile bridge, LibraryFile quorvel) {
        if (bridge.isWindows != onWindows) {
            report.note("for another system than this JVM's: only read");
        } else if (bridge.bits != bits) {
            report.fail(
                    "a "
                            + bits
                            + "-bit JVM does not load "
                            + bridge.bits
                            + "-bit libraries: take a "
                            + bridge.bits
                            + "-bit JVM");
        }
        if (quorvel != null
                && (quorvel.isWindows != bridge.isWindows
                        || !quorvel.machine.equals(bridge.machine))) {
            report.fail(
                    "quorvel is for " + quorvel.machine + ", the bridge for " + bridge.machine);
        }
        if (!bridge.version.equals(catalogue.version)) {
            report.fail(
                    "the bridge is "
                            + (bridge.version.isEmpty() ? "of no version" : bridge.version)
                            + ", this doctor "
                            + catalogue.version);
        }
    }

    /** Whether the system finds quorvel when it loads the bridge. */
    private void examineSearch(LibraryFile bridge) {
        report.heading("search");
        File directory = bridge.file.toAbsolutePath().normalize().getParent().toFile();
        if (loadsQuorvelFirst) {
            report.ok("the application's class loads quorvel before quorvelj");
        } else if (!bridge.isWindows) {
            boolean beside = bridge.searchPath.contains("$ORIGIN");
            if (beside || isIn(directory, System.getenv("LD_LIBRARY_PATH"))) {
                report.ok(
                        "libquorvel.so is looked for "
                                + (beside ? "beside libquorvelj.so" : "in LD_LIBRARY_PATH"));
            } else {
                report.fail(directory + " is not in LD_LIBRARY_PATH: libquorvel.so is not found");
            }
        } else if (!onWindows) {
            report.note("quorvel.dll is found where its directory is on PATH: not known here");
        } else if (isIn(directory, System.getenv("PATH"))
                || isIn(directory, System.getProperty("user.dir"))
                || isIn(directory, System.getProperty("java.home") + "\\bin")) {
            report.ok("quorvel.dll is found");
        } else {
            report.fail(
                    directory
                            + " is not on PATH, nor the current directory: quorvel.dll will not be"
                            + " found");
            report.note("put it on PATH, or let the application load quorvel first");
        }
    }

    private static boolean isIn(File directory, String path) {
        for (String name : (path == null ? "" : path).split(File.pathSeparator)) {
            if (!name.isEmpty() && new File(name).getAbsoluteFile().equals(directory)) {
                return true;
            }
        }
        return false;
    }

    /** The library functions that the bridge imports. */
    private void examineFunctions(LibraryFile bridge, LibraryFile quorvel) {
        report.heading("functions");
        Set<String> imported = new TreeSet<>();
        for (Set<String> names : bridge.imports.values()) {
            imported.addAll(names);
        }
        imported.retainAll(catalogue.functions.keySet());
        Set<String> missing = new TreeSet<>(imported);
        missing.removeAll(quorvel.exports);
        int present = imported.size() - missing.size();
        String summary = present + " of " + imported.size() + " in " + quorvel.file.getFileName();
        if (missing.isEmpty()) {
            report.ok(summary);
            return;
        }
        report.note(summary);
        int shown = 0;
        for (String name : missing) {
            if (++shown > MOST_NAMES) {
                break;
            }
            report.fail(
                    name + " missing: " + bridge.file.getFileName() + " will not load");
        }
        if (missing.size() > MOST_NAMES) {
            report.note("and " + (missing.size() - MOST_NAMES) + " more");
        }
    }

    /** The native methods that the bridge exports. */
    private void examineExports(LibraryFile bridge) {
        Set<String> missing = new TreeSet<>();
        for (Catalogue.Method method : catalogue.methods.values()) {
            String name =
                    bridge.isWindows
                            ? method.symbol
                            : method.symbol.substring(1, method.symbol.indexOf('@'));
            if (!bridge.exports.contains(name)) {
                missing.add(method.name);
            }
        }
        if (!missing.isEmpty()) {
            List<String> first = new ArrayList<>(missing);
            report.fail(
                    String.format(
                            Locale.ROOT,
                            "%d of %d native methods missing in %s: %s",
                            missing.size(),
                            catalogue.methods.size(),
                            bridge.file.getFileName(),
                            String.join(
                                    ", ", first.subList(0, Math.min(first.size(), MOST_NAMES)))));
        }
    }
}
