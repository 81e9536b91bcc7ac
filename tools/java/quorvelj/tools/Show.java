package quorvelj.tools;

import java.io.BufferedOutputStream;
import java.io.File;
import java.io.IOException;
import java.io.OutputStream;
import java.nio.charset.StandardCharsets;
import java.time.Instant;
import java.util.ArrayList;
import java.util.Collection;
import java.util.HashMap;
import java.util.LinkedHashSet;
import java.util.List;
import java.util.Locale;
import java.util.Map;
import java.util.Set;

/** Prints a recording of calls, decoded by the catalogue. */
final class Show {
    static final String USAGE =
            "show FILE [CALLS | --record NAME | --against FILE]\n"
                + "\n"
                + "  CALLS           17, or 17-40,99: these calls with every member of their records;\n"
                + "                  without it all calls, a line each\n"
                + "  --record NAME   all records of one kind: AccountBanner\n"
                + "  --against FILE  in what the calls of another recording differ, the first call of\n"
                + "                  a function with the first, the second with the second\n"
                + "\n"
                + "A password or session identifier is shown as what the recorder wrote in its place:\n"
                + "secret-3.\n"
                + "Exit status: 0 all is shown, 1 something differs or the file is damaged, 2 these\n"
                + "arguments are wrong.\n";

    /** On one parameter. */
    private static final int MOST_REMARKS = 4;

    private static final String COLUMNS =
            "  call  thread       start s        took ms  function(arguments) = result  remarks";

    /** That the reader of the output has gone away. */
    private static final class ReaderGone extends IOException {
        private static final long serialVersionUID = 1L;
    }

    private final Catalogue catalogue;
    private final OutputStream out;

    /** Which records have members that remarks may be about. */
    private final Map<String, Boolean> plan = new HashMap<>();

    /** What has been found of calls that others refer to, for each parameter. */
    private final Map<Recording.Call, Map<Integer, Finding>> found = new HashMap<>();

    /** What the list says of a parameter's bytes. */
    private static final class Finding {
        String brief = "";
        Fields.Findings findings = new Fields.Findings();
    }

    private Show(Catalogue catalogue, OutputStream out) {
        this.catalogue = catalogue;
        this.out = out;
    }

    /** Runs the command and returns the exit status. */
    static int run(List<String> arguments, OutputStream out) throws IOException, Main.Misuse {
        List<String> words = new ArrayList<>();
        Map<String, String> values = new HashMap<>();
        for (int index = 0; index < arguments.size(); ++index) {
            String word = arguments.get(index);
            if (!word.startsWith("--")) {
                words.add(word);
                continue;
            }
            if (!word.equals("--record") && !word.equals("--against")) {
                throw new Main.Misuse("unknown: " + word);
            }
            if (++index == arguments.size()) {
                throw new Main.Misuse(word + " without a value");
            }
            values.put(word, arguments.get(index));
        }
        if (words.isEmpty()) {
            throw new Main.Misuse("show without a file");
        }
        if (words.size() + values.size() > 2) {
            throw new Main.Misuse("more than one of CALLS, --record and --against");
        }
        Show show = new Show(Catalogue.own(), new BufferedOutputStream(out, 1 << 16));
        String record = values.get("--record");
        if (record != null && !show.catalogue.records.containsKey(record)) {
            throw new Main.Misuse("unknown record: " + record);
        }
        try (Recording recording = open(words.get(0))) {
            try {
                if (!values.containsKey("--against")) {
                    return show.show(recording, words.size() == 2 ? words.get(1) : "", record);
                }
                try (Recording other = open(values.get("--against"))) {
                    return new Comparison(show, recording, other).run();
                }
            } catch (OutOfMemoryError e) {
                throw new IOException("not enough memory: give java more with -Xmx");
            } finally {
                show.flush();
            }
        } catch (ReaderGone e) {
            return 0;
        }
    }

    private static Recording open(String name) throws IOException, Main.Misuse {
        File file = new File(name);
        if (!file.isFile()) {
            throw new Main.Misuse(name + (file.exists() ? " is no file" : " is missing"));
        }
        return Recording.read(file);
    }

    private int show(Recording recording, String numbers, String record)
            throws IOException, Main.Misuse {
        if (record != null) {
            showRecords(recording, record);
        } else if (!numbers.isEmpty()) {
            for (Recording.Call call : select(recording, numbers)) {
                showCall(recording, call);
            }
        } else {
            showAll(recording);
            remark(recording, recording.missing());
        }
        return end(recording);
    }

    private int end(Recording recording) throws IOException {
        remark(recording, recording.ending());
        return recording.isDamaged() ? 1 : 0;
    }

    // Output

    private void line(String text) throws IOException {
        try {
            out.write(text.getBytes(StandardCharsets.UTF_8));
            out.write('\n');
        } catch (IOException e) {
            throw gone(e);
        }
    }

    /** A line on the file, where there is something to say. */
    private void remark(Recording recording, String text) throws IOException {
        if (!text.isEmpty()) {
            line(recording.file + ": " + text);
        }
    }

    private void flush() throws IOException {
        try {
            out.flush();
        } catch (IOException e) {
            throw gone(e);
        }
    }

    private static IOException gone(IOException e) {
        boolean isPipe = ("" + e.getMessage()).toLowerCase(Locale.ROOT).contains("pipe");
        return isPipe ? new ReaderGone() : new IOException("cannot write: " + e.getMessage());
    }

    // Which calls

    private static Set<Recording.Call> select(Recording recording, String numbers)
            throws Main.Misuse {
        Set<Recording.Call> calls = new LinkedHashSet<>();
        for (String part : numbers.split(",", -1)) {
            if (!part.matches("[0-9]{1,18}(-[0-9]{1,18})?")) {
                throw new Main.Misuse("no numbers of calls: " + numbers);
            }
            String[] ends = part.split("-");
            long first = Long.parseLong(ends[0]);
            long last = Long.parseLong(ends[ends.length - 1]);
            int before = calls.size();
            boolean isAny = false;
            for (Recording.Call call : recording.calls) {
                if (call.number >= first && call.number <= last) {
                    calls.add(call);
                    isAny = true;
                }
            }
            if (!isAny) {
                String ending = recording.ending();
                throw new Main.Misuse(
                        "no call "
                                + part
                                + " in "
                                + recording.file
                                + (ending.isEmpty() ? "" : ": " + ending));
            }
        }
        return calls;
    }

    // Parameters

    private static String kindOf(Recording.Parameter parameter) {
        return parameter.kind == Recording.INPUT ? "in" : "out";
    }

    /** What the catalogue says of a function's parameters; null where it does not know them. */
    private List<String> known(Recording.Call call, Recording.Entry entry) {
        Catalogue.Function function = catalogue.functions.get(call.function);
        if (function == null || function.parameters.size() != entry.parameters.size()) {
            return null;
        }
        for (int index = 0; index < entry.parameters.size(); ++index) {
            Recording.Parameter parameter = entry.parameters.get(index);
            String[] words = function.parameters.get(index).split(" ");
            boolean isValue = words.length == 1;
            if (parameter.kind == Recording.NULL && !isValue) {
                continue;
            }
            boolean isKnownValue = parameter.kind == Recording.INT;
            if (isValue != isKnownValue || !isValue && !words[1].equals(kindOf(parameter))) {
                return null;
            }
        }
        return function.parameters;
    }

    /** A parameter as the catalogue has it; null where it does not, or has another size. */
    private Catalogue.Member member(List<String> known, Recording.Parameter parameter, int index) {
        if (known == null || parameter.bytes == 0) {
            return null;
        }
        Catalogue.Member member = Fields.parameter(catalogue, known.get(index), parameter.bytes);
        return member.allBytes() == parameter.bytes ? member : null;
    }

    /** "RaidGroup" of a record, or "parameter 3". */
    private static String label(List<String> known, int index) {
        String[] words = known == null ? new String[1] : known.get(index).split(" ");
        return "record".equals(words[0]) ? words[2] : "parameter " + (index + 1);
    }

    private String wanted(String label) {
        Catalogue.Record record = catalogue.records.get(label);
        return record == null ? "" : " instead of " + record.bytes;
    }

    // All calls

    private void showAll(Recording recording) throws IOException {
        line(
                recording.bits
                        + "-bit process, started "
                        + Instant.ofEpochMilli(recording.started)
                        + ", "
                        + Text.count(recording.calls.size(), "call"));
        line(COLUMNS);
        for (Recording.Call call : recording.calls) {
            line(listed(recording, call));
        }
    }

    private String listed(Recording recording, Recording.Call call) throws IOException {
        Recording.Entry entry = recording.entry(call);
        List<String> known = known(call, entry);
        List<String> arguments = new ArrayList<>();
        List<String> remarks = new ArrayList<>();
        if (!catalogue.functions.containsKey(call.function)) {
            remarks.add("not in the catalogue");
        } else if (known == null) {
            remarks.add("other parameters than in the catalogue");
        }
        for (int index = 0; index < entry.parameters.size(); ++index) {
            Recording.Parameter parameter = entry.parameters.get(index);
            String label = label(known, index);
            if (parameter.kind == Recording.INT) {
                arguments.add("" + parameter.value);
                continue;
            }
            if (parameter.kind == Recording.NULL) {
                arguments.add("null");
                continue;
            }
            Catalogue.Member member = member(known, parameter, index);
            String direction = parameter.kind == Recording.OUTPUT ? "out " : "";
            if (parameter.behind > 0) {
                remarks.add(Text.count(parameter.behind, "byte") + " behind " + label + " written");
            }
            if (member == null) {
                arguments.add(direction + Text.count(parameter.bytes, "byte"));
                if (known != null && parameter.bytes > 0) {
                    remarks.add(Text.count(parameter.bytes, "byte") + " of " + label + wanted(label));
                }
                continue;
            }
            boolean isOutput = parameter.kind == Recording.OUTPUT;
            Finding finding = finding(recording, call, index, member, label, !isOutput);
            arguments.add(direction + finding.brief);
            // What the caller leaves unset in an input is memory that others had.
            if (isOutput && entry.result == 0) {
                if (finding.findings.unwritten > 0) {
                    remarks.add(
                            Text.count(finding.findings.unwritten, "byte")
                                    + " of "
                                    + label
                                    + " not written");
                }
                addSome(remarks, finding.findings.lines);
            }
        }
        return Text.right(call.number, 6)
                + Text.right(entry.thread, 8)
                + Text.right(Text.decimal(entry.start, 6), 14)
                + Text.right(Text.decimal(entry.took / 1000, 3), 15)
                + "  "
                + call.function
                + '('
                + String.join(", ", arguments)
                + ") = "
                + entry.result
                + (remarks.isEmpty() ? "" : "  " + String.join("; ", remarks));
    }

    /** The first lines, and how many there are more. */
    private static void addSome(List<String> remarks, Collection<String> lines) {
        lines.stream().limit(MOST_REMARKS).forEach(remarks::add);
        if (lines.size() > MOST_REMARKS) {
            remarks.add("and " + (lines.size() - MOST_REMARKS) + " more");
        }
    }

    private Finding finding(
            Recording recording,
            Recording.Call call,
            int index,
            Catalogue.Member member,
            String label,
            boolean isInput)
            throws IOException {
        Recording.Call source = call.source(index);
        Map<Integer, Finding> ofSource = found.get(source);
        if (ofSource != null && ofSource.containsKey(index)) {
            return ofSource.get(index);
        }
        Fields fields = new Fields(catalogue, recording.content(call, index), this::line);
        Finding finding = new Finding();
        finding.brief = fields.brief(member, isInput);
        if (!isInput) {
            finding.findings = fields.findings(member, label, plan);
        }
        if (source.isSource) {
            found.computeIfAbsent(source, any -> new HashMap<>()).put(index, finding);
        }
        return finding;
    }

    // Single calls

    private void showCall(Recording recording, Recording.Call call) throws IOException {
        Recording.Entry entry = recording.entry(call);
        List<String> known = known(call, entry);
        line(title(recording, call, entry));
        for (int index = 0; index < entry.parameters.size(); ++index) {
            Recording.Parameter parameter = entry.parameters.get(index);
            Catalogue.Member member = member(known, parameter, index);
            line(heading(known, parameter, index));
            if (parameter.bytes > 0) {
                Fields fields = new Fields(catalogue, recording.content(call, index), this::line);
                if (member == null) {
                    fields.printUnknown();
                } else {
                    fields.print(member);
                }
            }
        }
    }

    private String title(Recording recording, Recording.Call call, Recording.Entry entry) {
        Catalogue.Function function = catalogue.functions.get(call.function);
        String remark = "";
        if (function == null) {
            remark = ", not in the catalogue";
        } else if (known(call, entry) == null) {
            remark = ", other parameters than in the catalogue";
        } else if (function.isAssumed) {
            remark = ", parameters assumed";
        }
        return "call "
                + call.number
                + "  "
                + call.function
                + " = "
                + entry.result
                + ", thread "
                + entry.thread
                + ", at "
                + Text.decimal(entry.start, 6)
                + " s, took "
                + Text.decimal(entry.took / 1000, 3)
                + " ms"
                + remark;
    }

    private static String heading(List<String> known, Recording.Parameter parameter, int index) {
        String text = "  " + (index + 1) + "  ";
        if (parameter.kind == Recording.INT) {
            return text + "int " + parameter.value;
        }
        if (parameter.kind == Recording.NULL) {
            return text + (known == null ? "" : known.get(index) + ", ") + "null";
        }
        return text
                + (known == null ? kindOf(parameter) : known.get(index))
                + ", "
                + Text.count(parameter.bytes, "byte")
                + (parameter.behind == 0
                        ? ""
                        : ", " + Text.count(parameter.behind, "byte") + " behind it written");
    }

    // Records of one kind

    private void showRecords(Recording recording, String record) throws IOException {
        boolean isAny = false;
        for (Recording.Call call : recording.calls) {
            Recording.Entry entry = recording.entry(call);
            List<String> known = known(call, entry);
            boolean isTitled = false;
            for (int index = 0; index < entry.parameters.size(); ++index) {
                Recording.Parameter parameter = entry.parameters.get(index);
                Catalogue.Member member = member(known, parameter, index);
                if (member != null && Fields.holds(catalogue, member.kind, record)) {
                    if (!isTitled) {
                        line(title(recording, call, entry));
                    }
                    isTitled = true;
                    isAny = true;
                    line(heading(known, parameter, index));
                    new Fields(catalogue, recording.content(call, index), this::line)
                            .printOnly(member, record);
                }
            }
        }
        if (!isAny) {
            line("no " + record + " in " + recording.file);
        }
    }

    // Two recordings

    /** What differs between two recordings. */
    private static final class Comparison {
        private final Show show;
        private final Recording recording;
        private final Recording other;

        Comparison(Show show, Recording recording, Recording other) {
            this.show = show;
            this.recording = recording;
            this.other = other;
        }

        int run() throws IOException {
            Map<String, List<Recording.Call>> others = new HashMap<>();
            for (Recording.Call call : other.calls) {
                others.computeIfAbsent(call.function, any -> new ArrayList<>()).add(call);
            }
            Map<String, Integer> done = new HashMap<>();
            Set<Recording.Call> matched = new LinkedHashSet<>();
            int different = 0;
            int single = 0;
            for (Recording.Call call : recording.calls) {
                int order = done.merge(call.function, 1, Integer::sum) - 1;
                List<Recording.Call> candidates = others.get(call.function);
                if (candidates == null || candidates.size() <= order) {
                    only(call, recording);
                    ++single;
                } else {
                    matched.add(candidates.get(order));
                    different += differ(call, candidates.get(order)) ? 1 : 0;
                }
            }
            for (Recording.Call call : other.calls) {
                if (!matched.contains(call)) {
                    only(call, other);
                    ++single;
                }
            }
            show.line(
                    Text.count(matched.size(), "call")
                            + " compared, "
                            + different
                            + " different, "
                            + single
                            + " in one recording only");
            int status = show.end(recording) | show.end(other);
            return different + single > 0 ? 1 : status;
        }

        private void only(Recording.Call call, Recording in) throws IOException {
            show.line("call " + call.number + "  " + call.function + "  only in " + in.file);
        }

        private boolean differ(Recording.Call call, Recording.Call otherCall) throws IOException {
            Recording.Entry entry = recording.entry(call);
            Recording.Entry otherEntry = other.entry(otherCall);
            List<String> known = show.known(call, entry);
            int count = entry.parameters.size();
            int otherCount = otherEntry.parameters.size();
            List<String> lines = new ArrayList<>();
            if (entry.result != otherEntry.result) {
                lines.add("  result  " + entry.result + " against " + otherEntry.result);
            }
            if (count != otherCount) {
                lines.add("  " + Text.count(count, "parameter") + " against " + otherCount);
            }
            for (int index = 0; index < Math.min(count, otherCount); ++index) {
                Recording.Parameter parameter = entry.parameters.get(index);
                Recording.Parameter otherParameter = otherEntry.parameters.get(index);
                String heading = heading(known, parameter, index);
                String otherHeading = heading(known, otherParameter, index);
                if (!heading.equals(otherHeading)) {
                    lines.add(heading + "  against  " + otherHeading.trim());
                }
                if (parameter.bytes > 0
                        && parameter.kind == otherParameter.kind
                        && parameter.bytes == otherParameter.bytes) {
                    List<String> members = new ArrayList<>();
                    new Fields(catalogue(), recording.content(call, index), members::add)
                            .printAgainst(
                                    show.member(known, parameter, index),
                                    new Fields(
                                            catalogue(),
                                            other.content(otherCall, index),
                                            members::add));
                    if (!members.isEmpty() && heading.equals(otherHeading)) {
                        lines.add(heading);
                    }
                    lines.addAll(members);
                }
            }
            if (!lines.isEmpty()) {
                show.line(
                        "call "
                                + call.number
                                + "  "
                                + call.function
                                + "  against call "
                                + otherCall.number);
            }
            for (String line : lines) {
                show.line(line);
            }
            return !lines.isEmpty();
        }

        private Catalogue catalogue() {
            return show.catalogue;
        }
    }
}
