package quorvelj.tools;

import java.io.IOException;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Locale;
import java.util.Map;
import java.util.Set;
import java.util.TreeSet;

/**
 * What a native library says of itself: a Windows DLL (PE) or a Linux shared object (ELF). It is read
 * as a file and never loaded, so that any machine can look at any library.
 */
public final class LibraryFile {
    private static final long MOST_BYTES = 256L << 20;
    private static final int MOST_NAMES = 1 << 16;
    private static final int MOST_CHARACTERS = 512;
    /** What stands before name and version in the bridge's libraries. */
    private static final String MARK = "@(#)";

    /** A file that is no library, with a message of one line. */
    public static final class NotALibrary extends IOException {
        private static final long serialVersionUID = 1L;

        NotALibrary(String message) {
            super(message);
        }
    }

    final Path file;
    boolean isWindows;

    /** "x86", "x86-64", or what else the header names. */
    String machine = "";

    /** 32 or 64. */
    int bits;

    /** Of the bridge, or of a DLL that has a version resource; "" where it names none. */
    String version = "";

    final Set<String> exports = new TreeSet<>();

    /** By the library that they come from, in lower case; a shared object does not say: "". */
    final Map<String, Set<String>> imports = new LinkedHashMap<>();

    /** The libraries that it needs. */
    final List<String> needed = new ArrayList<>();

    /** Where a shared object's needed libraries are looked for: DT_RUNPATH or DT_RPATH. */
    String searchPath = "";

    private final ByteBuffer bytes;
    private int names;

    private LibraryFile(Path file, byte[] content) throws NotALibrary {
        this.file = file;
        bytes = ByteBuffer.wrap(content).order(ByteOrder.LITTLE_ENDIAN);
        if (content.length == 0) {
            throw new NotALibrary("is empty");
        }
        if (startsWith(0, "\177ELF")) {
            readElf();
        } else if (startsWith(0, "MZ")) {
            readPe();
        } else {
            throw new NotALibrary("is neither a DLL nor a shared object");
        }
    }

    /** Reads a library, or throws `NotALibrary`. */
    public static LibraryFile read(Path file) throws IOException {
        if (!Files.isRegularFile(file)) {
            throw new NotALibrary(Files.exists(file) ? "is not a file" : "is missing");
        }
        if (Files.size(file) > MOST_BYTES) {
            throw new NotALibrary("is larger than " + (MOST_BYTES >> 20) + " MiB");
        }
        try {
            return new LibraryFile(file, Files.readAllBytes(file));
        } catch (IndexOutOfBoundsException | IllegalArgumentException | ArithmeticException e) {
            throw new NotALibrary("is truncated or damaged");
        }
    }

    private boolean startsWith(int at, String text) {
        for (int index = 0; index < text.length(); ++index) {
            if (at + index >= bytes.limit() || bytes.get(at + index) != text.charAt(index)) {
                return false;
            }
        }
        return true;
    }

    private int half(int at) {
        return bytes.getShort(at) & 0xFFFF;
    }

    /** A 32-bit offset or count; those that no file has are out of bounds. */
    private int word(int at) {
        return within(bytes.getInt(at) & 0xFFFFFFFFL);
    }

    private int within(long value) {
        if (value < 0 || value > bytes.limit()) {
            throw new IndexOutOfBoundsException();
        }
        return (int) value;
    }

    /** The text up to its NUL. */
    private String text(long start) {
        if (++names > MOST_NAMES) {
            throw new IndexOutOfBoundsException();
        }
        int at = within(start);
        int end = at;
        while (bytes.get(end) != 0) {
            if (++end - at > MOST_CHARACTERS) {
                throw new IndexOutOfBoundsException();
            }
        }
        return new String(bytes.array(), at, end - at, StandardCharsets.ISO_8859_1);
    }

    // Shared objects

    private static final int SHT_DYNAMIC = 6;
    private static final int SHT_DYNSYM = 11;
    private static final int DT_NEEDED = 1;
    private static final int DT_RPATH = 15;
    private static final int DT_RUNPATH = 29;

    /** An offset, an address or a size: 4 or 8 bytes. */
    private int wide(int at) {
        return bits == 32 ? word(at) : within(bytes.getLong(at));
    }

    private void readElf() throws NotALibrary {
        bits = bytes.get(4) == 2 ? 64 : 32;
        if (bytes.get(5) != 1 || half(16) != 3) {
            throw new NotALibrary("is no shared object for a little-endian machine");
        }
        machine = machine(half(18), 3, 62, 183);
        int start = wide(bits == 32 ? 32 : 40);
        int entry = half(bits == 32 ? 46 : 58);
        int count = half(bits == 32 ? 48 : 60);
        boolean hasSymbols = false;
        for (int index = 0; index < count; ++index) {
            int section = within(start + (long) index * entry);
            int type = bytes.getInt(section + 4);
            if (type == SHT_DYNSYM || type == SHT_DYNAMIC) {
                int strings = within(start + (long) word(section + (bits == 32 ? 24 : 40)) * entry);
                int texts = wide(strings + (bits == 32 ? 16 : 24));
                int from = wide(section + (bits == 32 ? 16 : 24));
                int to = within((long) from + wide(section + (bits == 32 ? 20 : 32)));
                if (type == SHT_DYNSYM) {
                    readSymbols(from, to, texts);
                    hasSymbols = true;
                } else {
                    readDynamic(from, to, texts);
                }
            }
        }
        if (!hasSymbols) {
            throw new NotALibrary("has no table of dynamic symbols");
        }
        version = markedVersion();
    }

    private void readSymbols(int from, int to, int texts) {
        int entry = bits == 32 ? 16 : 24;
        for (int symbol = from + entry; symbol + entry <= to; symbol += entry) {
            boolean isDefined = half(symbol + (bits == 32 ? 14 : 6)) != 0;
            String name = text((long) texts + word(symbol));
            if (isDefined) {
                exports.add(name);
            } else {
                imports.computeIfAbsent("", any -> new TreeSet<>()).add(name);
            }
        }
    }

    private void readDynamic(int from, int to, int texts) {
        int half = bits / 8;
        for (int entry = from; entry + 2 * half <= to; entry += 2 * half) {
            long tag = bits == 32 ? bytes.getInt(entry) : bytes.getLong(entry);
            if (tag == 0) {
                return;
            }
            if (tag == DT_NEEDED) {
                needed.add(text((long) texts + wide(entry + half)));
            } else if (tag == DT_RUNPATH || tag == DT_RPATH) {
                searchPath = text((long) texts + wide(entry + half));
            }
        }
    }

    private static String machine(int machine, int x86, int x86On64, int arm64) {
        return machine == x86
                ? "x86"
                : machine == x86On64
                        ? "x86-64"
                        : machine == arm64 ? "ARM64" : String.format("machine 0x%x", machine);
    }

    // DLLs

    private int sections;
    private int sectionCount;

    private void readPe() throws NotALibrary {
        isWindows = true;
        int header = word(0x3C);
        if (!startsWith(header, "PE\0\0")) {
            throw new NotALibrary("is no DLL for Windows");
        }
        if ((half(header + 22) & 0x2000) == 0) {
            throw new NotALibrary("is a program, not a DLL");
        }
        machine = machine(half(header + 4), 0x14C, 0x8664, 0xAA64);
        int optional = header + 24;
        bits = half(optional) == 0x20B ? 64 : 32;
        sections = optional + half(header + 20);
        sectionCount = half(header + 6);
        int directories = optional + (bits == 32 ? 96 : 112);
        int directoryCount = word(directories - 4);
        if (directoryCount > 0 && word(directories) != 0) {
            readExports(offset(bytes.getInt(directories)));
        }
        if (directoryCount > 1 && word(directories + 8) != 0) {
            readImports(offset(bytes.getInt(directories + 8)));
        }
        version = markedVersion();
        if (version.isEmpty()) {
            version = resourceVersion();
        }
    }

    /** Where the bytes of a relative virtual address are in the file. */
    private int offset(int address) {
        long wanted = address & 0xFFFFFFFFL;
        for (int index = 0; index < sectionCount; ++index) {
            int section = sections + index * 40;
            long start = bytes.getInt(section + 12) & 0xFFFFFFFFL;
            long size = bytes.getInt(section + 16) & 0xFFFFFFFFL;
            if (wanted >= start && wanted < start + size) {
                return within(wanted - start + word(section + 20));
            }
        }
        throw new IndexOutOfBoundsException();
    }

    private void readExports(int directory) {
        int count = word(directory + 24);
        int table = count == 0 ? 0 : offset(bytes.getInt(directory + 32));
        for (int index = 0; index < count; ++index) {
            exports.add(text(offset(bytes.getInt(table + 4 * index))));
        }
    }

    private void readImports(int directory) {
        for (int entry = directory; bytes.getInt(entry + 12) != 0; entry += 20) {
            String library = text(offset(bytes.getInt(entry + 12))).toLowerCase(Locale.ROOT);
            needed.add(library);
            Set<String> imported = imports.computeIfAbsent(library, any -> new TreeSet<>());
            int originals = bytes.getInt(entry);
            int thunk = offset(originals != 0 ? originals : bytes.getInt(entry + 16));
            int size = bits / 8;
            for (; ; thunk += size) {
                long value = bits == 32 ? bytes.getInt(thunk) : bytes.getLong(thunk);
                if (value == 0) {
                    break;
                }
                if (value > 0) { // Below zero it is a number, not a name.
                    imported.add(text(offset((int) value) + 2L));
                }
            }
        }
    }

    // Versions

    private int find(int from, byte[] wanted) {
        byte[] content = bytes.array();
        for (int at = from; at + wanted.length <= content.length; ++at) {
            int same = 0;
            while (same < wanted.length && content[at + same] == wanted[same]) {
                ++same;
            }
            if (same == wanted.length) {
                return at;
            }
        }
        return -1;
    }

    /** What stands behind `@(#)quorvelj `. */
    private String markedVersion() {
        byte[] mark = (MARK + "quorvelj ").getBytes(StandardCharsets.US_ASCII);
        int at = find(0, mark);
        return at < 0 ? "" : text(at + mark.length);
    }

    /** The file version of VS_FIXEDFILEINFO. */
    private String resourceVersion() {
        int at = find(0, new byte[] {(byte) 0xBD, 0x04, (byte) 0xEF, (byte) 0xFE});
        return at < 0
                ? ""
                : half(at + 10) + "." + half(at + 8) + "." + half(at + 14) + "." + half(at + 12);
    }
}
