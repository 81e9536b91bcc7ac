import java.util.ArrayList;
import java.util.List;

/** Rows of texts, the headings first, printed with aligned columns. */
final class Table {
    private final List<String[]> rows = new ArrayList<String[]>();

    Table(String... headings) {
        rows.add(headings);
    }

    Table row(Object... cells) {
        String[] texts = new String[cells.length];
        for (int column = 0; column < cells.length; column++) {
            texts[column] = String.valueOf(cells[column]);
        }
        rows.add(texts);
        return this;
    }

    List<String[]> rows() {
        return rows;
    }

    void print() {
        int[] widths = new int[rows.get(0).length];
        for (String[] row : rows) {
            for (int column = 0; column < row.length; column++) {
                widths[column] = Math.max(widths[column], row[column].length());
            }
        }
        printRow(rows.get(0), widths);
        StringBuilder rule = new StringBuilder("  ");
        for (int width : widths) {
            for (int dash = 0; dash < width; dash++) {
                rule.append('-');
            }
            rule.append("  ");
        }
        System.out.println(trimmed(rule));
        for (String[] row : rows.subList(1, rows.size())) {
            printRow(row, widths);
        }
        if (rows.size() == 1) {
            System.out.println("  (none)");
        }
        System.out.println();
    }

    private static void printRow(String[] row, int[] widths) {
        StringBuilder line = new StringBuilder("  ");
        for (int column = 0; column < row.length; column++) {
            line.append(String.format("%-" + Math.max(1, widths[column]) + "s  ", row[column]));
        }
        System.out.println(trimmed(line));
    }

    private static String trimmed(StringBuilder line) {
        return line.toString().replaceFirst(" +$", "");
    }
}
