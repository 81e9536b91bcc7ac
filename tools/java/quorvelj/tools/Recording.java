package quorvelj.tools;

import java.io.Closeable;
import java.io.EOFException;
import java.io.File;
import java.io.IOException;
import java.io.RandomAccessFile;
import java.nio.charset.StandardCharsets;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.BitSet;
import java.util.Comparator;
import java.util.HashMap;
import java.util.List;
import java.util.Map;
import java.util.TreeMap;
import java.util.zip.CRC32;

/**
 * The calls of a recording, read from the file that docs/recording.md describes. What is held is where
 * each call lies; its bytes are decoded when they are asked for.
 */
final class Recording implements Closeable {
    private static final byte[] MARK = "quorvrec".getBytes(StandardCharsets.US_ASCII);
    private static final int HEADER = 24;
    private static final int VERSION = 1;

    /** Of a parameter; the largest record has 76 MB. */
    private static final long MOST_BYTES = 1 << 27;

    private static final long MOST_BODY = 1 << 28;
    private static final int MOST_PARAMETERS = 100;
    private static final int MOST_CHARACTERS = 1000;
    private static final int MOST_GAPS = 5;

    static final int INT = 0;
    static final int INPUT = 1;
    static final int OUTPUT = 2;
    static final int NULL = 3;

    private static final int LITERAL = 0;
    private static final int ZEROS = 1;
    private static final int UNWRITTEN = 2;

    /** A file that is no recording, with a message of one line. */
    static final class NoRecording extends IOException {
        private static final long serialVersionUID = 1L;

        NoRecording(String message) {
            super(message);
        }
    }

    /** What is wrong with an entry, and where. */
    private static final class Damage extends Exception {
        private static final long serialVersionUID = 1L;

        Damage(long at, String message) {
            super("damaged at byte " + at + ": " + message);
        }
    }

    /** A call, and where its entry lies. */
    static final class Call {
        final long number;
        final String function;
        private final long start;
        private final long end;

        /** Kind and number of bytes of each parameter; calls of a function share it. */
        private long[] shape;

        /** For each parameter the call whose entry has its bytes, null where that is this one. */
        private Call[] sources;

        /** Whether another call refers to this one. */
        boolean isSource;

        private Call(long number, String function, long start, long end) {
            this.number = number;
            this.function = function;
            this.start = start;
            this.end = end;
        }

        /** The call whose entry has the bytes of a parameter. */
        Call source(int parameter) {
            return sources == null || sources[parameter] == null ? this : sources[parameter];
        }
    }

    /** What an entry says of its call but the bytes. */
    static final class Entry {
        private long number;
        long thread;

        /** Microseconds from the start of the recording. */
        long start;

        /** Nanoseconds. */
        long took;

        long result;
        private String function;
        final List<Parameter> parameters = new ArrayList<>();
    }

    /** An argument of a call. */
    static final class Parameter {
        int kind;

        /** Of an int. */
        long value;

        int bytes;

        /** How many bytes behind an output were written. */
        long behind;

        private long sameAs;
        private long sameAsPlace;
        private long chunks;
    }

    /** The bytes of an input or output. */
    static final class Content {
        final byte[] bytes;

        /** Those that the library did not write. */
        final BitSet unwritten = new BitSet();

        Content(int count) {
            bytes = new byte[count];
        }
    }

    final File file;

    /** The width of the recorded process. */
    final int bits;

    /** The start in milliseconds since 1970. */
    final long started;

    /** In the order of their numbers. */
    final List<Call> calls = new ArrayList<>();

    private String ending = "";

    private boolean isDamaged;

    private final RandomAccessFile in;
    private final long size;

    /** A part of the file. */
    private final byte[] window = new byte[1 << 16];

    private long windowStart;
    private int windowCount;

    /** The body of an entry, read from its start. */
    private final class Cursor {
        private long at;
        private final long end;

        Cursor(long start, long end) {
            at = start;
            this.end = end;
        }

        int next() throws IOException, Damage {
            if (at >= end) {
                throw new Damage(at, "the entry is too short for what it begins");
            }
            return byteAt(at++);
        }

        private long bits() throws IOException, Damage {
            long start = at;
            long value = 0;
            for (int shift = 0; shift < Long.SIZE; shift += 7) {
                int part = next();
                if (shift == 63 && part > 1) {
                    break;
                }
                value |= (long) (part & 0x7f) << shift;
                if (part < 0x80) {
                    return value;
                }
            }
            throw new Damage(start, "a number of more than 64 bits");
        }

        long number(long most, String what) throws IOException, Damage {
            long start = at;
            long value = bits();
            if (value < 0 || value > most) {
                throw new Damage(start, what + Long.toUnsignedString(value));
            }
            return value;
        }

        long number() throws IOException, Damage {
            return number(Long.MAX_VALUE, "a number as large as ");
        }

        long signed() throws IOException, Damage {
            long value = bits();
            return value >>> 1 ^ -(value & 1);
        }

        void skip(long count) throws Damage {
            if (count > end - at) {
                throw new Damage(
                        at, Text.count(count, "byte") + " where the entry has " + (end - at));
            }
            at += count;
        }

        String text() throws IOException, Damage {
            int count = (int) number(MOST_CHARACTERS, "the length of a name: ");
            byte[] bytes = new byte[count];
            long start = at;
            skip(count);
            read(start, bytes, 0, count);
            return Text.shown(bytes, 0, count);
        }
    }

    private Recording(File file) throws IOException {
        this.file = file;
        in = new RandomAccessFile(file, "r");
        size = in.length();
        try {
            byte[] header = new byte[(int) Math.min(size, HEADER)];
            read(0, header, 0, header.length);
            int marked = Math.min(header.length, MARK.length);
            if (size == 0) {
                throw new NoRecording(file + " is empty");
            }
            if (!Arrays.equals(Arrays.copyOf(header, marked), Arrays.copyOf(MARK, marked))) {
                throw new NoRecording(file + " is no recording");
            }
            if (size < HEADER) {
                throw new NoRecording(
                        file + " ends at byte " + size + ", inside the head of a recording");
            }
            if (uint32(8) != VERSION) {
                throw new NoRecording(
                        file + " is a recording of version " + uint32(8) + ", not " + VERSION);
            }
            bits = (int) uint32(12);
            if (bits != 32 && bits != 64) {
                throw new NoRecording(
                        file + " is a recording of a process of " + uint32(12) + " bits");
            }
            started = uint32(16) | uint32(20) << 32;
            readEntries();
        } catch (IOException e) {
            in.close();
            throw e;
        }
    }

    /** Reads where the calls of a file lie. */
    static Recording read(File file) throws IOException {
        return new Recording(file);
    }

    @Override
    public void close() throws IOException {
        in.close();
    }

    boolean isDamaged() {
        return isDamaged;
    }

    /** What became of the file's end, in one line; "" where the file is whole. */
    String ending() {
        return ending;
    }

    /** The numbers that no call has: those calls began and did not end; "" for none. */
    String missing() {
        List<String> missing = new ArrayList<>();
        long wanted = 1;
        for (Call call : calls) {
            if (call.number > wanted && missing.size() <= MOST_GAPS) {
                long last = call.number - 1;
                missing.add(missing.size() == MOST_GAPS ? "..." : Text.range(wanted, last));
            }
            wanted = call.number + 1;
        }
        return missing.isEmpty() ? "" : "without an end: " + String.join(", ", missing);
    }

    // Entries

    private void readEntries() throws IOException {
        Map<Long, Call> byNumber = new HashMap<>();
        Map<String, Call> lastOf = new TreeMap<>();
        try {
            for (long at = HEADER; at < size; ) {
                long length = size - at < 8 ? 0 : uint32(at);
                if (length > MOST_BODY) {
                    throw new Damage(at, "an entry of " + Text.count(length, "byte"));
                }
                if (length + 8 > size - at) {
                    ending = "ends inside the entry at byte " + at + "; what precedes it is whole";
                    break;
                }
                if (sum(at + 8, length) != uint32(at + 4)) {
                    throw new Damage(at, "the sum of the entry is wrong");
                }
                add(at + 8, at + 8 + length, byNumber, lastOf);
                at += 8 + length;
            }
        } catch (Damage e) {
            ending = e.getMessage() + "; what precedes the entry is shown";
            isDamaged = true;
        }
        calls.addAll(byNumber.values());
        calls.sort(Comparator.comparingLong(call -> call.number));
    }

    private void add(long start, long end, Map<Long, Call> byNumber, Map<String, Call> lastOf)
            throws IOException, Damage {
        Entry entry = parse(start, end);
        Call last = lastOf.get(entry.function);
        Call call = new Call(entry.number, last == null ? entry.function : last.function, start, end);
        int count = entry.parameters.size();
        call.shape = new long[count];
        for (int index = 0; index < count; ++index) {
            Parameter parameter = entry.parameters.get(index);
            call.shape[index] = (long) parameter.bytes << 2 | parameter.kind;
            if (parameter.sameAs == 0) {
                continue;
            }
            Call earlier = byNumber.get(parameter.sameAs);
            if (earlier == null || earlier.function != call.function) {
                throw new Damage(
                        parameter.sameAsPlace,
                        "the bytes of call "
                                + parameter.sameAs
                                + ", which is no earlier one of "
                                + call.function);
            }
            if (earlier.shape.length <= index || earlier.shape[index] != call.shape[index]) {
                throw new Damage(
                        parameter.sameAsPlace,
                        "the bytes of call " + parameter.sameAs + ", which has others there");
            }
            call.sources = call.sources == null ? new Call[count] : call.sources;
            call.sources[index] = earlier.source(index);
            call.sources[index].isSource = true;
        }
        if (last != null && Arrays.equals(last.shape, call.shape)) {
            call.shape = last.shape;
        }
        if (byNumber.putIfAbsent(call.number, call) != null) {
            throw new Damage(start, "call " + call.number + " for the second time");
        }
        lastOf.put(call.function, call);
    }

    /** What a call's entry says. */
    Entry entry(Call call) throws IOException {
        try {
            return parse(call.start, call.end);
        } catch (Damage e) {
            throw new IOException(file + " changed while it was read", e);
        }
    }

    private Entry parse(long start, long end) throws IOException, Damage {
        Cursor cursor = new Cursor(start, end);
        Entry entry = new Entry();
        entry.number = cursor.number();
        if (entry.number == 0) {
            throw new Damage(start, "a call 0");
        }
        entry.thread = cursor.number();
        entry.start = cursor.number();
        entry.took = cursor.number();
        entry.result = cursor.signed();
        entry.function = cursor.text();
        long count = cursor.number(MOST_PARAMETERS, "the number of parameters: ");
        while (entry.parameters.size() < count) {
            entry.parameters.add(parameter(cursor));
        }
        if (cursor.at != end) {
            throw new Damage(
                    cursor.at, Text.count(end - cursor.at, "byte") + " behind the last parameter");
        }
        return entry;
    }

    private static Parameter parameter(Cursor cursor) throws IOException, Damage {
        Parameter parameter = new Parameter();
        parameter.kind = cursor.next();
        if (parameter.kind > NULL) {
            throw new Damage(cursor.at - 1, "a parameter of kind " + parameter.kind);
        }
        if (parameter.kind == INT) {
            parameter.value = cursor.signed();
        } else if (parameter.kind != NULL) {
            parameter.bytes = (int) cursor.number(MOST_BYTES, "the bytes of a parameter: ");
            parameter.behind = parameter.kind == OUTPUT ? cursor.number() : 0;
            parameter.sameAsPlace = cursor.at;
            parameter.sameAs = cursor.number();
            parameter.chunks = cursor.at;
            if (parameter.sameAs == 0) {
                passChunks(cursor, parameter);
            }
        }
        return parameter;
    }

    // Bytes

    /** Checks that the chunks of a parameter can be decoded, and goes to their end. */
    private static void passChunks(Cursor cursor, Parameter parameter) throws IOException, Damage {
        for (long count = 0; count < parameter.bytes; ) {
            long place = cursor.at;
            long chunk = cursor.number();
            long length = chunk >>> 2;
            int kind = (int) chunk & 3;
            if (length == 0 || length > parameter.bytes - count) {
                throw new Damage(
                        place,
                        "a chunk of "
                                + Text.count(length, "byte")
                                + " where the parameter lacks "
                                + (parameter.bytes - count));
            }
            if (kind == LITERAL) {
                cursor.skip(length);
            } else if (kind == UNWRITTEN && parameter.kind == INPUT) {
                throw new Damage(place, "an input that the library did not write");
            } else if (kind > UNWRITTEN) {
                long distance = cursor.number();
                if (distance == 0 || distance > count) {
                    throw new Damage(
                            place, "the bytes that stand " + distance + " before byte " + count);
                }
            }
            count += length;
        }
    }

    /** The bytes of a parameter. */
    Content content(Call call, int index) throws IOException {
        Call source = call.source(index);
        Parameter parameter = entry(source).parameters.get(index);
        Content content = new Content(parameter.bytes);
        Cursor cursor = new Cursor(parameter.chunks, source.end);
        try {
            for (int at = 0; at < parameter.bytes; ) {
                long chunk = cursor.number();
                int length = (int) (chunk >>> 2);
                switch ((int) chunk & 3) {
                    case LITERAL:
                        read(cursor.at, content.bytes, at, length);
                        cursor.skip(length);
                        break;
                    case ZEROS:
                        break;
                    case UNWRITTEN:
                        content.unwritten.set(at, at + length);
                        break;
                    default:
                        repeat(content, at, (int) cursor.number(), length);
                }
                at += length;
            }
        } catch (Damage e) {
            throw new IOException(file + " changed while it was read", e);
        }
        return content;
    }

    /** Repeats earlier bytes; what was not written is not written in the copy. */
    private static void repeat(Content content, int to, int distance, int length) {
        int from = to - distance;
        int end = to + length;
        for (int at = to; at < end; ) {
            // What stands between is a whole number of periods, and grows.
            int piece = Math.min(end - at, at - from);
            System.arraycopy(content.bytes, from, content.bytes, at, piece);
            BitSet unwritten = content.unwritten;
            int run = unwritten.nextSetBit(from);
            while (run >= 0 && run < from + piece) {
                int runEnd = Math.min(unwritten.nextClearBit(run), from + piece);
                unwritten.set(run - from + at, runEnd - from + at);
                run = unwritten.nextSetBit(runEnd);
            }
            at += piece;
        }
    }

    // The file

    private int byteAt(long position) throws IOException {
        if (position < windowStart || position >= windowStart + windowCount) {
            in.seek(position);
            windowStart = position;
            windowCount = Math.max(0, in.read(window));
            if (windowCount == 0) {
                throw new EOFException(file + " became shorter while it was read");
            }
        }
        return window[(int) (position - windowStart)] & 0xff;
    }

    private void read(long position, byte[] to, int at, int count) throws IOException {
        for (int done = 0; done < count; ) {
            byteAt(position + done);
            int offset = (int) (position + done - windowStart);
            int piece = Math.min(count - done, windowCount - offset);
            System.arraycopy(window, offset, to, at + done, piece);
            done += piece;
        }
    }

    private long uint32(long position) throws IOException {
        long value = 0;
        for (int index = 3; index >= 0; --index) {
            value = value << 8 | byteAt(position + index);
        }
        return value;
    }

    private long sum(long position, long count) throws IOException {
        CRC32 sum = new CRC32();
        for (long done = 0; done < count; ) {
            byteAt(position + done);
            int offset = (int) (position + done - windowStart);
            int piece = (int) Math.min(count - done, windowCount - offset);
            sum.update(window, offset, piece);
            done += piece;
        }
        return sum.getValue();
    }
}
