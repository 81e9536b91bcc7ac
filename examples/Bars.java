import java.util.Locale;

/** A picture of bars, each of one part or more. */
final class Bars {
    /** In a legend, what the parts leave of the width. */
    static final String FREE = "free";

    private final String title;
    private final String what;
    private final String[] legend;
    private final StringBuilder rows = new StringBuilder();

    Bars(String title, String what, String... legend) {
        this.title = title;
        this.what = what;
        this.legend = legend;
    }

    /** A bar of these parts, beside one another; <code>full</code> is what the whole width stands for. */
    void row(String label, String words, long full, long... parts) {
        rows.append("<li><p><b>").append(Html.text(label)).append("</b> <span>")
                .append(Html.text(words)).append("</span></p><div class=\"bar\">");
        for (int part = 0; part < parts.length; part++) {
            rows.append(String.format(Locale.ROOT, "<i class=\"part%d\" style=\"width:%.2f%%\"></i>",
                    part, full == 0 ? 0 : 100.0 * parts[part] / full));
        }
        rows.append("</div></li>\n");
    }

    /** How much of a capacity is used, both in blocks. */
    void capacity(String label, long used, long total) {
        String words = String.format(Locale.ROOT, "%s of %s used, %.0f %%", Capacity.of(used),
                Capacity.of(total), total == 0 ? 0 : 100.0 * used / total);
        row(label, words, total, used);
    }

    /** Adds the picture, unless it is empty. */
    void addTo(Report report) {
        if (rows.length() == 0) {
            return;
        }
        StringBuilder key = new StringBuilder();
        for (int part = 0; part < legend.length; part++) {
            key.append("<span><i class=\"key ").append(legend[part].equals(FREE) ? FREE : "part" + part)
                    .append("\"></i>").append(Html.text(legend[part])).append("</span>");
        }
        report.pictures.put(title, "<p class=\"legend\">" + Html.text(what) + key
                + "</p><ul class=\"bars\">\n" + rows + "</ul>\n");
    }
}
