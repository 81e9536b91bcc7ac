import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.text.SimpleDateFormat;
import java.util.Date;
import java.util.List;
import java.util.Locale;
import java.util.Map;

/** A report as one page for a browser, which loads nothing else. It is well-formed XML. */
final class Html {
    private static final String NUMBER = "-?[0-9]+([.][0-9]+)?( ?(%|s|[KMGTP]?i?B))?";

    private Html() {}

    /** A text as markup; what XML cannot hold is replaced. */
    static String text(String text) {
        StringBuilder escaped = new StringBuilder();
        for (char each : String.valueOf(text).toCharArray()) {
            switch (each) {
                case '&':
                    escaped.append("&amp;");
                    break;
                case '<':
                    escaped.append("&lt;");
                    break;
                case '>':
                    escaped.append("&gt;");
                    break;
                case '"':
                    escaped.append("&quot;");
                    break;
                default:
                    boolean holds = each >= ' ' && each < 0xFFFE || each == '\n' || each == '\t';
                    escaped.append(holds ? each : '\uFFFD');
            }
        }
        return escaped.toString();
    }

    static void write(Report report, boolean readOnly, Path file) throws IOException {
        // A half of a pair of surrogates becomes a question mark here.
        Files.write(file, page(report, readOnly).getBytes(StandardCharsets.UTF_8));
    }

    private static String page(Report report, boolean readOnly) {
        String unit = report.facts.getOrDefault("Unit", "no array");
        StringBuilder page = new StringBuilder("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n"
                + "<meta charset=\"utf-8\" />\n"
                + "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\" />\n"
                + "<meta name=\"color-scheme\" content=\"light dark\" />\n"
                + "<meta http-equiv=\"Content-Security-Policy\""
                + " content=\"default-src 'none'; style-src 'unsafe-inline'\" />\n");
        page.append("<title>Array tour of ").append(text(unit)).append("</title>\n<style>\n")
                .append(Style.SHEET).append("</style>\n</head>\n<body>\n");
        header(page, report, unit, readOnly);
        page.append("<main>\n");
        verdict(page, report);
        counts(page, report);
        if (!report.pictures.isEmpty()) {
            page.append("<section class=\"pictures\">\n");
            for (Map.Entry<String, String> picture : report.pictures.entrySet()) {
                page.append("<figure").append(picture.getKey().equals(Rack.TITLE) ? " class=\"tall\"" : "")
                        .append("><figcaption>").append(text(picture.getKey())).append("</figcaption>")
                        .append(picture.getValue()).append("</figure>\n");
            }
            page.append("</section>\n");
        }
        page.append("<h2>Page by page</h2>\n");
        for (Report.Page each : report.pages) {
            page(page, each);
        }
        return page.append("</main>\n</body>\n</html>\n").toString();
    }

    private static void header(StringBuilder page, Report report, String unit, boolean readOnly) {
        page.append("<header>\n<p class=\"over\">Array tour").append(readOnly ? ", read-only" : "")
                .append(" &#183; ")
                .append(new SimpleDateFormat("yyyy-MM-dd HH:mm", Locale.ROOT).format(new Date()))
                .append("</p>\n<h1>").append(text(unit)).append("</h1>\n<dl class=\"facts\">");
        for (Map.Entry<String, String> fact : report.facts.entrySet()) {
            if (!fact.getKey().equals("Unit")) {
                page.append("<div><dt>").append(fact.getKey()).append("</dt><dd>")
                        .append(text(fact.getValue())).append("</dd></div>");
            }
        }
        page.append("</dl>\n</header>\n");
    }

    private static void counts(StringBuilder page, Report report) {
        page.append("<ul class=\"counts\">");
        for (Report.Outcome outcome : Report.Outcome.values()) {
            int count = report.count(outcome);
            page.append("<li class=\"").append(count == 0 ? "none" : kind(outcome)).append("\"><b>")
                    .append(count).append("</b>").append(mark(outcome)).append(words(outcome))
                    .append("</li>");
        }
        page.append(String.format(Locale.ROOT, "<li><b>%.1f s</b>in all</li></ul>\n",
                report.seconds()));
    }

    /** Whether something is unexpected, and what. */
    private static void verdict(StringBuilder page, Report report) {
        if (report.isAsExpected()) {
            page.append("<p class=\"verdict ok\">").append(mark(Report.Outcome.OK))
                    .append("Nothing was unexpected.</p>\n");
            return;
        }
        page.append("<section class=\"verdict unexpected\">\n<h2>").append(mark(Report.Outcome.UNEXPECTED))
                .append("Unexpected</h2>\n<ul>\n");
        for (Report.Page each : report.pages) {
            for (Report.Step step : each.steps) {
                if (step.outcome == Report.Outcome.UNEXPECTED) {
                    page.append("<li><b>").append(text(each.title)).append(": ").append(text(step.heading))
                            .append("</b> ").append(text(step.words)).append("</li>\n");
                }
            }
        }
        for (String left : report.left) {
            page.append("<li><b>Still there</b> ").append(text(left)).append("</li>\n");
        }
        page.append("</ul>\n</section>\n");
    }

    private static void page(StringBuilder page, Report.Page shown) {
        page.append("<details").append(shown.count(Report.Outcome.UNEXPECTED) > 0 ? " open=\"open\"" : "")
                .append("><summary><h3>").append(text(shown.title)).append("</h3><span class=\"marks\">");
        for (Report.Outcome outcome : Report.Outcome.values()) {
            int count = shown.count(outcome);
            if (count > 0) {
                page.append("<span class=\"").append(kind(outcome)).append("\">").append(mark(outcome))
                        .append(count).append(" <em>").append(words(outcome)).append("</em></span>");
            }
        }
        page.append("</span></summary>\n");
        for (Report.Step step : shown.steps) {
            page.append("<article><h4>").append(text(step.heading)).append("</h4>\n<p class=\"outcome ")
                    .append(kind(step.outcome)).append("\">").append(mark(step.outcome))
                    .append(words(step.outcome)).append(step.words.isEmpty() ? "" : ": ")
                    .append(text(step.words))
                    .append(String.format(Locale.ROOT, " <small>%.0f ms</small></p>\n", step.milliseconds));
            for (Object content : step.content) {
                if (content instanceof Table) {
                    table(page, step.heading, ((Table) content).rows());
                } else {
                    page.append("<p>").append(text(content.toString())).append("</p>\n");
                }
            }
            page.append("</article>\n");
        }
        page.append("</details>\n");
    }

    private static void table(StringBuilder page, String name, List<String[]> rows) {
        page.append("<div class=\"table\" role=\"region\" tabindex=\"0\" aria-label=\"")
                .append(text(name)).append("\"><table>\n");
        for (String[] row : rows) {
            boolean heading = row == rows.get(0);
            page.append("<tr>");
            for (int column = 0; column < row.length; column++) {
                page.append(heading ? "<th" : "<td").append(isNumeric(rows, column) ? " class=\"n\">" : ">")
                        .append(text(row[column])).append(heading ? "</th>" : "</td>");
            }
            page.append("</tr>\n");
        }
        page.append("</table></div>\n").append(rows.size() == 1 ? "<p>None.</p>\n" : "");
    }

    private static boolean isNumeric(List<String[]> rows, int column) {
        boolean numeric = rows.size() > 1;
        for (String[] row : rows.subList(1, rows.size())) {
            numeric &= row[column].isEmpty() || row[column].matches(NUMBER);
        }
        return numeric;
    }

    /** The name of an outcome in the style sheet. */
    private static String kind(Report.Outcome outcome) {
        return outcome.name().toLowerCase(Locale.ROOT);
    }

    private static String words(Report.Outcome outcome) {
        return outcome == Report.Outcome.OK ? "OK" : outcome.words.toLowerCase(Locale.ROOT);
    }

    private static String mark(Report.Outcome outcome) {
        return "<span class=\"mark\" aria-hidden=\"true\">" + (outcome == Report.Outcome.OK ? "&#10003;"
                : outcome == Report.Outcome.EXPECTED ? "&#8634;"
                : outcome == Report.Outcome.UNEXPECTED ? "&#10007;" : "&#8211;") + "</span> ";
    }
}
