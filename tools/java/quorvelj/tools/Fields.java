package quorvelj.tools;

import java.io.IOException;
import java.util.ArrayList;
import java.util.BitSet;
import java.util.LinkedHashSet;
import java.util.List;
import java.util.Map;
import java.util.Set;

/** The bytes of a parameter, member by member as the catalogue has them. */
final class Fields {
    private static final int ROW = 16;
    private static final int NAME = 40;
    private static final int MOST_DIFFERENCES = 100;
    private static final int MOST_CHARACTERS = 40;
    private static final String TOKEN = "secret-";

    /** Where lines go. */
    interface Lines {
        void line(String text) throws IOException;
    }

    private final Catalogue catalogue;
    private final byte[] bytes;
    private final BitSet unwritten;
    private final Lines out;

    Fields(Catalogue catalogue, Recording.Content content, Lines out) {
        this.catalogue = catalogue;
        bytes = content.bytes;
        unwritten = content.unwritten;
        this.out = out;
    }

    /** A parameter of the catalogue as a member of as many elements as there are bytes for. */
    static Catalogue.Member parameter(Catalogue catalogue, String line, int bytes) {
        String[] words = line.split(" ");
        String kind = words[0].equals("int") ? "int32" : words[0];
        String name = words[0];
        long size = 4;
        if (kind.equals("record")) {
            kind = words[2];
            name = kind;
            size = catalogue.records.get(kind).bytes;
        } else if (!kind.equals("int32")) {
            size = kind.equals("text") ? bytes : 1;
        }
        boolean isArray = kind.equals("bytes") || bytes != size;
        String extents = isArray ? "" + bytes / size : "-";
        return member(size, kind, extents, name);
    }

    private static Catalogue.Member member(long size, String kind, String extents, String name) {
        String line = "member 0 " + size + ' ' + kind + ' ' + extents + " 1 " + name + " confirmed";
        return new Catalogue.Member(line.split(" "));
    }

    private Catalogue.Record record(Catalogue.Member member) {
        return catalogue.records.get(member.kind);
    }

    // Bytes

    private boolean isZero(int start, int end) {
        for (int at = start; at < end; ++at) {
            if (bytes[at] != 0) {
                return false;
            }
        }
        return countUnwritten(start, end) == 0;
    }

    private boolean isUnwritten(int start, int end) {
        return start < end && unwritten.get(start) && unwritten.nextClearBit(start) >= end;
    }

    private int countUnwritten(int start, int end) {
        int count = 0;
        for (int at = unwritten.nextSetBit(start); at >= 0 && at < end; ) {
            int clear = Math.min(end, unwritten.nextClearBit(at));
            count += clear - at;
            at = unwritten.nextSetBit(clear);
        }
        return count;
    }

    /** Whether two places have the same bytes, and the same of them unwritten. */
    private boolean isSame(int start, Fields other, int otherStart, int count) {
        for (int index = 0; index < count; ++index) {
            if (bytes[start + index] != other.bytes[otherStart + index]) {
                return false;
            }
        }
        if (countUnwritten(start, start + count)
                != other.countUnwritten(otherStart, otherStart + count)) {
            return false;
        }
        for (int at = unwritten.nextSetBit(start); at >= 0 && at < start + count; ) {
            int clear = Math.min(start + count, unwritten.nextClearBit(at));
            if (!other.isUnwritten(at - start + otherStart, clear - start + otherStart)) {
                return false;
            }
            at = unwritten.nextSetBit(clear);
        }
        return true;
    }

    private int int32(int at) {
        return bytes[at] & 0xff
                | (bytes[at + 1] & 0xff) << 8
                | (bytes[at + 2] & 0xff) << 16
                | bytes[at + 3] << 24;
    }

    private long number(Catalogue.Member member, int at) {
        switch (member.kind) {
            case "int32":
                return int32(at);
            case "int8":
                return bytes[at];
            default:
                return bytes[at] & 0xff;
        }
    }

    /** Behind the text: its first NUL, or where its room ends. */
    private int endOfText(int start, int end) {
        for (int at = start; at < end; ++at) {
            if (bytes[at] == 0 && !unwritten.get(at)) {
                return at;
            }
        }
        return end;
    }

    private boolean isToken(int start, int end) {
        if (end - start < TOKEN.length()) {
            return false;
        }
        for (int index = 0; index < TOKEN.length(); ++index) {
            if (bytes[start + index] != TOKEN.charAt(index)) {
                return false;
            }
        }
        return true;
    }

    private String quoted(int start, int end) {
        return '"' + Text.shown(bytes, start, endOfText(start, end)) + '"';
    }

    private String hex(int start, int end) {
        StringBuilder text = new StringBuilder();
        for (int at = start; at < end; ++at) {
            text.append(at == start ? "" : " ");
            text.append(unwritten.get(at) ? "--" : Text.hex(bytes[at]));
        }
        return text.toString();
    }

    /** The value of a single element without elements of its own. */
    private String value(Catalogue.Member member, int start, int end) {
        if (isUnwritten(start, end)) {
            return "not written";
        }
        int missing = countUnwritten(start, end);
        String rest = missing == 0 ? "" : ", " + missing + " of " + (end - start) + " not written";
        switch (member.kind) {
            case "text":
                int endOfText = endOfText(start, end);
                return countUnwritten(start, endOfText) > 0
                        ? '"' + Text.shown(bytes, start, unwritten.nextSetBit(start)) + '"' + rest
                        : quoted(start, end) + (endOfText == end ? " without end" : "");
            case "bytes":
                return isToken(start, end)
                        ? quoted(start, end)
                        : isZero(start, end) ? "zero" : hex(start, end);
            default:
                return missing > 0 ? hex(start, end) + rest : "" + number(member, start);
        }
    }

    // All members

    /** Prints a parameter. */
    void print(Catalogue.Member parameter) throws IOException {
        Catalogue.Record record = record(parameter);
        if (isUnwritten(0, bytes.length)) {
            line(0, bytes.length, parameter.name, "not written");
        } else if (record != null && parameter.extents.length == 0) {
            print(record, 0, "", false);
        } else {
            print(parameter, 0, 0, parameter.name, false);
        }
    }

    /** Prints bytes of which nothing is known. */
    void printUnknown() throws IOException {
        printBytes(0, bytes.length, "(unknown)", "");
    }

    /** Prints the records of one kind that a parameter is or holds. */
    void printOnly(Catalogue.Member parameter, String wanted) throws IOException {
        if (parameter.kind.equals(wanted)) {
            print(parameter);
        } else {
            int size = (int) parameter.bytes;
            for (int start = 0; start < bytes.length; start += size) {
                String prefix =
                        parameter.extents.length == 0
                                ? ""
                                : parameter.name + '[' + start / size + "].";
                printOnly(record(parameter), start, prefix, wanted);
            }
        }
    }

    private void printOnly(Catalogue.Record record, int base, String prefix, String wanted)
            throws IOException {
        for (Catalogue.Member member : record.members) {
            int start = base + (int) member.offset;
            if (member.kind.equals(wanted)) {
                print(member, start, 0, prefix + member.name, member.isAssumed);
            } else if (holds(catalogue, member.kind, wanted)) {
                int count = (int) (member.allBytes() / member.bytes);
                for (int index = 0; index < count; ++index) {
                    String name = prefix + member.name + indices(member, index) + '.';
                    int at = start + index * (int) member.bytes;
                    printOnly(record(member), at, name, wanted);
                }
            }
        }
    }

    /** Whether a kind is that of a record, or of one that holds it. */
    static boolean holds(Catalogue catalogue, String kind, String wanted) {
        Catalogue.Record record = catalogue.records.get(kind);
        return kind.equals(wanted)
                || record != null
                        && record.members.stream()
                                .anyMatch(member -> holds(catalogue, member.kind, wanted));
    }

    private static String indices(Catalogue.Member member, int index) {
        String text = "";
        for (int dimension = member.extents.length - 1; dimension >= 0; --dimension) {
            text = "[" + index % member.extents[dimension] + "]" + text;
            index /= member.extents[dimension];
        }
        return text;
    }

    private void print(Catalogue.Record record, int base, String prefix, boolean isAssumed)
            throws IOException {
        int gap = 0;
        for (Catalogue.Member member : record.members) {
            while (gap < record.gaps.size() && record.gaps.get(gap).offset < member.offset) {
                printGap(record, record.gaps.get(gap++), base, prefix);
            }
            int start = base + (int) member.offset;
            boolean isNowAssumed = isAssumed || member.isAssumed;
            if (member.isReserved()) {
                String name = prefix + member.name;
                printBytes(start, start + (int) member.allBytes(), name, mark(isNowAssumed));
            } else {
                print(member, start, 0, prefix + member.name, isNowAssumed);
            }
        }
        while (gap < record.gaps.size()) {
            printGap(record, record.gaps.get(gap++), base, prefix);
        }
    }

    private void printGap(Catalogue.Record record, Catalogue.Gap gap, int base, String prefix)
            throws IOException {
        int start = base + (int) gap.offset;
        int end = start + (int) gap.bytes;
        boolean isPadding = !record.members.isEmpty();
        if (isPadding && isAllZeroOrUnwritten(start, end)) {
            return;
        }
        printBytes(start, end, prefix + (isPadding ? "(padding)" : "(no field)"), "");
    }

    private boolean isAllZeroOrUnwritten(int start, int end) {
        for (int at = start; at < end; ++at) {
            if (bytes[at] != 0 && !unwritten.get(at)) {
                return false;
            }
        }
        return true;
    }

    /** The elements of a member from one of its dimensions on. */
    private void print(
            Catalogue.Member member, int start, int dimension, String name, boolean isAssumed)
            throws IOException {
        int left = member.extents.length - dimension;
        Catalogue.Record record = record(member);
        String mark = mark(isAssumed);
        if (member.kind.equals("bytes") && left <= 1) {
            printBytes(start, start + (left == 0 ? 1 : member.extents[dimension]), name, mark);
        } else if (left > 0) {
            printElements(member, start, dimension, name, isAssumed);
        } else if (record == null) {
            int end = start + (int) member.bytes;
            line(start, end, name, value(member, start, end) + mark);
        } else {
            String whole = whole(start, start + (int) record.bytes);
            if (whole.isEmpty()) {
                print(record, start, name + '.', isAssumed);
            } else {
                line(start, start + (int) record.bytes, name, whole + mark);
            }
        }
    }

    private void printElements(
            Catalogue.Member member, int start, int dimension, String name, boolean isAssumed)
            throws IOException {
        int extent = member.extents[dimension];
        int size = (int) member.bytes;
        for (int inner = dimension + 1; inner < member.extents.length; ++inner) {
            size *= member.extents[inner];
        }
        boolean isPlain = record(member) == null && dimension == member.extents.length - 1;
        for (int index = 0; index < extent; ) {
            int at = start + index * size;
            int next = index + 1;
            while (next < extent && isSame(at, this, start + next * size, size)) {
                ++next;
            }
            int end = start + next * size;
            String whole = isPlain ? value(member, at, at + size) : whole(at, at + size);
            if (!whole.isEmpty()) {
                line(at, end, name + element(index, next), whole + mark(isAssumed));
            } else {
                String first = name + '[' + index + ']';
                print(member, at, dimension + 1, first, isAssumed);
                if (next > index + 1) {
                    line(at + size, end, name + element(index + 1, next), "as " + first);
                }
            }
            index = next;
        }
    }

    private static String element(int index, int next) {
        return "[" + index + (next == index + 1 ? "" : ".." + (next - 1)) + ']';
    }

    /** What a range is as a whole; "" where that needs its parts. */
    private String whole(int start, int end) {
        return isUnwritten(start, end) ? "not written" : isZero(start, end) ? "zero" : "";
    }

    private static String mark(boolean isAssumed) {
        return isAssumed ? "  assumed" : "";
    }

    /** Raw bytes: in one line, or as a dump in which rows like the one before are left out. */
    private void printBytes(int start, int end, String name, String mark) throws IOException {
        String whole = whole(start, end);
        if (!whole.isEmpty() || end - start <= ROW || isToken(start, end)) {
            String value = isToken(start, end) ? quoted(start, end) : hex(start, end);
            line(start, end, name, (whole.isEmpty() ? value : whole) + mark);
            return;
        }
        line(start, end, name, mark.trim());
        boolean isRepeated = false;
        for (int at = start; at < end; at += ROW) {
            int rowEnd = Math.min(end, at + ROW);
            if (at > start && rowEnd - at == ROW && isSame(at, this, at - ROW, ROW)) {
                if (!isRepeated) {
                    out.line(Text.right("*", 11));
                }
                isRepeated = true;
                continue;
            }
            isRepeated = false;
            StringBuilder letters = new StringBuilder();
            for (int place = at; place < rowEnd; ++place) {
                boolean isLetter = bytes[place] >= ' ' && bytes[place] <= '~';
                letters.append(isLetter && !unwritten.get(place) ? (char) bytes[place] : '.');
            }
            out.line(
                    Text.right(at, 11)
                            + "  "
                            + Text.left(hex(at, rowEnd), 3 * ROW)
                            + ' '
                            + letters);
        }
    }

    private void line(int start, int end, String name, String value) throws IOException {
        out.line(text(start, end, name, value));
    }

    private static String text(int start, int end, String name, String value) {
        String text = Text.right(start, 11) + Text.right(end - start, 10) + "  ";
        return value.isEmpty() ? text + name : text + Text.left(name, NAME) + "  " + value;
    }

    // What is remarkable

    /** What an output holds that a library should not leave there. */
    static final class Findings {
        /** Bytes of members that the library did not write, but for those behind a text's end. */
        int unwritten;

        final Set<String> lines = new LinkedHashSet<>();
    }

    Findings findings(Catalogue.Member parameter, String label, Map<String, Boolean> plan) {
        Findings findings = new Findings();
        findings.unwritten = unwritten.cardinality();
        find(parameter, label, 0, plan, findings);
        return findings;
    }

    private void find(
            Catalogue.Member member,
            String name,
            int start,
            Map<String, Boolean> plan,
            Findings findings) {
        Catalogue.Record record = record(member);
        boolean isText = member.kind.equals("text");
        if (record == null ? !isText : !isWorthLooking(record, plan)) {
            return;
        }
        int size = (int) member.bytes;
        int end = start + (int) member.allBytes();
        for (int at = start; at < end; at += size) {
            if (isText) {
                int endOfText = endOfText(at, at + size);
                if (endOfText < at + size) {
                    findings.unwritten -= countUnwritten(endOfText, at + size);
                } else if (countUnwritten(at, at + size) == 0) {
                    findings.lines.add("text without end: " + name);
                }
            } else {
                find(record, at, plan, findings);
            }
        }
    }

    private void find(
            Catalogue.Record record, int base, Map<String, Boolean> plan, Findings findings) {
        for (Catalogue.Member member : record.members) {
            int start = base + (int) member.offset;
            String name = record.name + '.' + member.name;
            if (isFlag(record, member)) {
                if ((number(member, start) & ~1) != 0) {
                    findings.lines.add("neither 0 nor 1: " + name);
                }
            } else {
                find(member, name, start, plan, findings);
            }
        }
        if (!record.members.isEmpty()) {
            for (Catalogue.Gap gap : record.gaps) {
                int start = base + (int) gap.offset;
                findings.unwritten -= countUnwritten(start, start + (int) gap.bytes);
            }
        }
    }

    private boolean isWorthLooking(Catalogue.Record record, Map<String, Boolean> plan) {
        Boolean isWorth = plan.get(record.name);
        if (isWorth == null) {
            isWorth = !record.gaps.isEmpty();
            for (Catalogue.Member member : record.members) {
                Catalogue.Record part = record(member);
                isWorth |= member.kind.equals("text") || isFlag(record, member);
                isWorth |= part != null && isWorthLooking(part, plan);
            }
            plan.put(record.name, isWorth);
        }
        return isWorth;
    }

    /**
     * Whether a member is one flag: a number whose name ends in `_valid`, `_used` or `_enable`. Those
     * called `port_valid` beside an array `port` may have a bit for each element, and `set_valid` one
     * for each setting; neither counts, nor does `valid_index`.
     */
    private boolean isFlag(Catalogue.Record record, Catalogue.Member member) {
        boolean isNumber = record(member) == null && !member.kind.equals("bytes");
        if (!isNumber || member.kind.equals("text") || member.extents.length > 0) {
            return false;
        }
        String name = member.name;
        if (name.endsWith("_valid")) {
            String of = name.substring(0, name.lastIndexOf('_'));
            return !of.equals("set")
                    && record.members.stream()
                            .noneMatch(other -> other.name.equals(of) && other.extents.length > 0);
        }
        return name.endsWith("_used") || name.endsWith("_enable");
    }

    // In short

    /**
     * A parameter in a few words: up to two texts of a record that are not empty, of an input also
     * numbers that are not 0.
     */
    String brief(Catalogue.Member parameter, boolean isInput) {
        Catalogue.Record record = record(parameter);
        int end = bytes.length;
        if (record == null) {
            return parameter.extents.length > 0
                    ? parameter.name + '[' + parameter.extents[0] + ']'
                    : cut(value(parameter, 0, end));
        }
        if (parameter.extents.length > 0) {
            return parameter.name + '[' + parameter.extents[0] + ']';
        }
        List<String> found = new ArrayList<>();
        collect(record, 0, true, found);
        if (isInput) {
            collect(record, 0, false, found);
        }
        return parameter.name + (found.isEmpty() ? "" : '{' + String.join(", ", found) + '}');
    }

    private void collect(Catalogue.Record record, int base, boolean texts, List<String> found) {
        for (Catalogue.Member member : record.members) {
            int start = base + (int) member.offset;
            int end = start + (int) member.allBytes();
            Catalogue.Record part = record(member);
            if (part != null && part.isPart && member.extents.length == 0) {
                collect(part, start, texts, found);
            }
            boolean isToken = member.kind.equals("bytes") && isToken(start, end);
            boolean isText = member.kind.equals("text") && member.extents.length == 0 || isToken;
            boolean isNumber = part == null && !member.kind.equals("bytes") && !isText;
            boolean isWanted = texts ? isText : isNumber && member.extents.length == 0;
            boolean isSet = texts ? bytes[start] != 0 : !isZero(start, end);
            if (found.size() < 2 && isWanted && isSet && !member.isReserved()) {
                found.add(member.name + ' ' + cut(value(member, start, end)));
            }
        }
    }

    private static String cut(String text) {
        return text.length() <= MOST_CHARACTERS
                ? text
                : text.substring(0, MOST_CHARACTERS) + "...";
    }

    // Two recordings

    /** Prints the members in which another parameter of the same kind differs; whether any does. */
    boolean printAgainst(Catalogue.Member parameter, Fields other) throws IOException {
        List<String> lines = new ArrayList<>();
        if (parameter == null) {
            compareBytes(other, 0, bytes.length, "(unknown)", lines);
        } else if (record(parameter) != null && parameter.extents.length == 0) {
            compare(record(parameter), other, 0, "", lines);
        } else {
            compare(parameter, other, 0, parameter.name, lines);
        }
        for (String line : lines.subList(0, Math.min(lines.size(), MOST_DIFFERENCES))) {
            out.line(line);
        }
        if (lines.size() > MOST_DIFFERENCES) {
            out.line("             and more");
        }
        return !lines.isEmpty();
    }

    private void compare(
            Catalogue.Record record, Fields other, int base, String prefix, List<String> lines) {
        for (Catalogue.Member member : record.members) {
            int start = base + (int) member.offset;
            if (member.isReserved()) {
                int end = start + (int) member.allBytes();
                compareBytes(other, start, end, prefix + member.name, lines);
            } else {
                compare(member, other, start, prefix + member.name, lines);
            }
        }
        if (record.members.isEmpty()) {
            compareBytes(other, base, base + (int) record.bytes, prefix + "(no field)", lines);
        }
    }

    private void compare(
            Catalogue.Member member, Fields other, int start, String name, List<String> lines) {
        int memberEnd = start + (int) member.allBytes();
        boolean isMissing = isUnwritten(start, memberEnd);
        if (isMissing != other.isUnwritten(start, memberEnd) && member.extents.length > 0) {
            String value = isMissing ? "not written" : "written";
            String otherValue = isMissing ? "written" : "not written";
            lines.add(text(start, memberEnd, name, value + " against " + otherValue));
            return;
        }
        if (member.kind.equals("bytes")) {
            compareBytes(other, start, start + (int) member.allBytes(), name, lines);
            return;
        }
        int size = (int) member.bytes;
        int count = (int) member.allBytes() / size;
        for (int index = 0; index < count && lines.size() <= MOST_DIFFERENCES; ++index) {
            int at = start + index * size;
            if (isSame(at, other, at, size)) {
                continue;
            }
            String element = name + indices(member, index);
            if (record(member) != null) {
                compare(record(member), other, at, element + '.', lines);
                continue;
            }
            String value = value(member, at, at + size);
            String otherValue = other.value(member, at, at + size);
            if (!value.equals(otherValue)) {
                lines.add(text(at, at + size, element, value + " against " + otherValue));
            }
        }
    }

    private void compareBytes(Fields other, int start, int end, String name, List<String> lines) {
        if (isToken(start, end) && other.isToken(start, end)) {
            String value = quoted(start, end);
            String otherValue = other.quoted(start, end);
            if (!value.equals(otherValue)) {
                lines.add(text(start, end, name, value + " against " + otherValue));
            }
            return;
        }
        for (int at = start; at < end && lines.size() <= MOST_DIFFERENCES; ++at) {
            if (!isSame(at, other, at, 1)) {
                int last = Math.min(end, at + ROW);
                while (isSame(last - 1, other, last - 1, 1)) {
                    --last;
                }
                String value = hex(at, last) + " against " + other.hex(at, last);
                lines.add(text(at, last, name, value));
                at = last - 1;
            }
        }
    }
}
