package quorvelj.tools;

import java.io.ByteArrayOutputStream;
import java.io.EOFException;
import java.io.File;
import java.io.FileInputStream;
import java.io.IOException;
import java.io.InputStream;
import java.lang.reflect.Constructor;
import java.lang.reflect.InvocationTargetException;
import java.net.URL;
import java.net.URLClassLoader;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Collections;
import java.util.HashMap;
import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.TreeSet;
import java.util.stream.Stream;
import java.util.zip.ZipEntry;
import java.util.zip.ZipFile;

/**
 * The classes of an application, as its jars and directories have them. They are read, not loaded;
 * `construct` alone runs code of theirs.
 */
public final class Application implements AutoCloseable {
    /** A class that cannot be had, with a reason of one line. */
    static final class NoClass extends Exception {
        private static final long serialVersionUID = 1L;

        NoClass(String message) {
            super(message);
        }
    }

    /** Jars, and null for directories. */
    private final Map<File, ZipFile> path = new LinkedHashMap<>();

    private final Map<String, ClassFile> classes = new HashMap<>();
    private final ClassLoader platform = ClassLoader.getSystemClassLoader().getParent();
    private final URLClassLoader loader;

    /** Opens jars and directories; throws an `IOException` that names the one that cannot be. */
    Application(List<File> files) throws IOException {
        List<URL> urls = new ArrayList<>();
        for (File file : files) {
            urls.add(file.toURI().toURL());
            try {
                path.put(file, file.isDirectory() ? null : new ZipFile(file));
            } catch (IOException e) {
                throw new IOException(file + (file.exists() ? " is no jar" : " is missing"), e);
            }
        }
        loader = new URLClassLoader(urls.toArray(new URL[0]), platform);
    }

    @Override
    public void close() throws IOException {
        loader.close();
        for (ZipFile jar : path.values()) {
            if (jar != null) {
                jar.close();
            }
        }
    }

    /** A class by its name in slash form, of the application or of the JVM. */
    ClassFile find(String name) throws NoClass {
        ClassFile found = classes.get(name);
        if (found == null) {
            try (InputStream in = open(name + ".class")) {
                if (in == null) {
                    throw new NoClass("missing");
                }
                found = ClassFile.read(allOf(in));
            } catch (IOException e) {
                throw new NoClass(
                        "cannot be read: "
                                + (e instanceof EOFException ? "truncated" : e.getMessage()));
            }
            if (!found.name.equals(name)) {
                throw new NoClass("is the class " + found.name);
            }
            classes.put(name, found);
        }
        return found;
    }

    /** Whether the class or one above it is `wanted`. */
    boolean isA(ClassFile type, String wanted) throws NoClass {
        for (ClassFile above = type; ; above = find(above.superclass)) {
            if (above.name.equals(wanted)) {
                return true;
            }
            if (above.superclass.isEmpty()) {
                return false;
            }
        }
    }

    /**
     * What JNI takes for a field: the nearest of this name and signature that is not static, in the
     * class or above it. Null where there is none.
     */
    ClassFile.Member field(ClassFile type, String name, String signature) throws NoClass {
        for (ClassFile above = type; ; above = find(above.superclass)) {
            for (ClassFile.Member field : above.fields) {
                if (field.name.equals(name)
                        && field.signature.equals(signature)
                        && !field.isStatic()) {
                    return field;
                }
            }
            if (above.superclass.isEmpty()) {
                return null;
            }
        }
    }

    /** The nearest field of this name, whatever its type. Null where there is none. */
    ClassFile.Member field(ClassFile type, String name) throws NoClass {
        for (ClassFile above = type; ; above = find(above.superclass)) {
            for (ClassFile.Member field : above.fields) {
                if (field.name.equals(name)) {
                    return field;
                }
            }
            if (above.superclass.isEmpty()) {
                return null;
            }
        }
    }

    /**
     * Whether constructing the class can only set fields of its own: nothing in it, or in the
     * classes that it extends and constructs, calls anything but their constructors.
     */
    boolean isHarmless(ClassFile type) throws NoClass {
        return isHarmless(type, new HashSet<>());
    }

    private boolean isHarmless(ClassFile type, Set<String> seen) throws NoClass {
        if (type.name.equals("java/lang/Object") || !seen.add(type.name)) {
            return true;
        }
        if (type.isDynamic() || type.name.startsWith("java/")) {
            return false;
        }
        for (String[] call : type.calls) {
            if (!call[1].equals("<init>") || !isHarmless(find(call[0]), seen)) {
                return false;
            }
        }
        for (String owner : type.fieldOwners) {
            if (!isHarmless(find(owner), seen)) {
                return false;
            }
        }
        return isHarmless(find(type.superclass), seen);
    }

    /** A new object of the class: its constructor runs, and the class's initialiser before it. */
    Object construct(ClassFile type) throws NoClass {
        try {
            Constructor<?> constructor =
                    Class.forName(type.name.replace('/', '.'), true, loader)
                            .getDeclaredConstructor();
            constructor.setAccessible(true);
            return constructor.newInstance();
        } catch (InvocationTargetException e) {
            throw new NoClass("its constructor throws " + e.getCause());
        } catch (ReflectiveOperationException | LinkageError | RuntimeException e) {
            throw new NoClass("cannot be constructed: " + e);
        }
    }

    /** The names of all methods that code of the application calls. */
    Set<String> calledMethods() throws IOException {
        Set<String> called = new TreeSet<>();
        for (Map.Entry<File, ZipFile> entry : path.entrySet()) {
            if (entry.getValue() == null) {
                try (Stream<Path> files = Files.walk(entry.getKey().toPath())) {
                    for (Path file : (Iterable<Path>) files::iterator) {
                        addCalls(called, file.toString(), () -> Files.newInputStream(file));
                    }
                }
                continue;
            }
            for (ZipEntry file : Collections.list(entry.getValue().entries())) {
                addCalls(called, file.getName(), () -> entry.getValue().getInputStream(file));
            }
        }
        return called;
    }

    private interface Content {
        InputStream open() throws IOException;
    }

    /** A class that cannot be read calls nothing. */
    private static void addCalls(Set<String> called, String name, Content content) {
        if (name.endsWith(".class")) {
            try (InputStream in = content.open()) {
                for (String[] call : ClassFile.read(allOf(in)).calls) {
                    called.add(call[1]);
                }
            } catch (IOException e) {
                return;
            }
        }
    }

    private InputStream open(String name) throws IOException {
        for (Map.Entry<File, ZipFile> entry : path.entrySet()) {
            ZipFile jar = entry.getValue();
            File inside = new File(entry.getKey(), name);
            if (jar == null && inside.isFile()) {
                return new FileInputStream(inside);
            }
            if (jar != null && jar.getEntry(name) != null) {
                return jar.getInputStream(jar.getEntry(name));
            }
        }
        return platform.getResourceAsStream(name);
    }

    /** The bytes that are left. */
    public static byte[] allOf(InputStream in) throws IOException {
        ByteArrayOutputStream out = new ByteArrayOutputStream();
        byte[] buffer = new byte[1 << 13];
        for (int count; (count = in.read(buffer)) > 0; ) {
            out.write(buffer, 0, count);
        }
        return out.toByteArray();
    }
}
