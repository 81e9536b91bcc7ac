import tessaly.str.diskarray.DiskDrive;
import tessaly.str.diskarray.DiskDriveInformation;

/**
 * A picture of the parts of an array and their conditions. A part of condition 1 and a drive of state 0
 * are taken as normal, as the simulator has them.
 */
final class Rack {
    static final String TITLE = "Condition of the parts";
    private static final int NORMAL_PART = 1;
    private static final int NORMAL_DRIVE = 0;

    private final StringBuilder parts = new StringBuilder();
    private final StringBuilder enclosures = new StringBuilder();

    private static String cell(int number, boolean normal, String details) {
        return "<li class=\"" + (normal ? "good" : "bad") + "\" title=\"" + Html.text(details) + "\">"
                + number + (normal ? "" : "<b>!</b>") + "</li>";
    }

    /** The parts of a kind; places without a part are 0. */
    void parts(String kind, int[] conditions) {
        StringBuilder cells = new StringBuilder();
        int occupied = 0;
        for (int place = 0; place < conditions.length; place++) {
            if (conditions[place] != 0) {
                occupied++;
                cells.append(cell(place, conditions[place] == NORMAL_PART,
                        kind + " " + place + ", condition " + conditions[place]));
            }
        }
        if (occupied > 0) {
            parts.append("<div class=\"unit small\"><p><b>").append(Html.text(kind)).append("</b> <span>")
                    .append(occupied).append(" of ").append(conditions.length)
                    .append("</span></p><ul>").append(cells).append("</ul></div>\n");
        }
    }

    /** An enclosure, unless it is empty. */
    void enclosure(int number, DiskDrive[] drives, DiskDriveInformation[] information) {
        StringBuilder cells = new StringBuilder();
        int mounted = 0;
        for (int slot = 0; slot < drives.length; slot++) {
            if (drives[slot].mount == 0) {
                cells.append("<li class=\"empty\" title=\"slot ").append(slot).append(", empty\">")
                        .append(slot).append("</li>");
                continue;
            }
            mounted++;
            DiskDriveInformation drive = information[slot];
            cells.append(cell(slot, drives[slot].drv_state == NORMAL_DRIVE,
                    "slot " + slot + ", " + drive.drive_type_name + " " + drive.drive_capacity
                            + ", serial " + drive.serial + ", state " + drives[slot].drv_state));
        }
        if (mounted > 0) {
            enclosures.append("<div class=\"unit\"><p><b>drives of unit ").append(number)
                    .append("</b> <span>").append(mounted).append(" of ").append(drives.length)
                    .append("</span></p><ul>").append(cells).append("</ul></div>\n");
        }
    }

    String markup() {
        return "<p class=\"legend\">Number of the place<span><i class=\"key good\"></i>normal</span>"
                + "<span><i class=\"key bad\">!</i>another condition</span>"
                + "<span><i class=\"key empty\"></i>empty</span></p>"
                + "<div class=\"rack\">\n<div class=\"parts\">" + parts + "</div>" + enclosures
                + "</div>\n";
    }
}
