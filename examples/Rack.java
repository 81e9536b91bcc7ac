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

    /** The places of one kind of part. */
    private static final class Places {
        private final StringBuilder cells = new StringBuilder();
        private final StringBuilder notes = new StringBuilder();
        private int occupied;

        void add(int place, boolean normal, String details) {
            occupied++;
            cells.append("<li class=\"").append(normal ? "good" : "bad").append("\" title=\"")
                    .append(Html.text(details)).append("\">").append(place).append(normal ? "" : "!")
                    .append("</li>");
            if (!normal) {
                notes.append("<p class=\"note\">! ").append(Html.text(details)).append("</p>");
            }
        }

        void addEmpty(int place) {
            cells.append("<li class=\"empty\">").append(place).append("</li>");
        }

        /** Nothing where all places are empty. */
        void addTo(StringBuilder units, String kind, String name, int count) {
            if (occupied > 0) {
                units.append("<div class=\"").append(kind).append("\"><p><b>").append(name)
                        .append("</b> <span>").append(occupied).append(" of ").append(count)
                        .append("</span></p><ul>").append(cells).append("</ul>").append(notes)
                        .append("</div>\n");
            }
        }
    }

    /** The parts of a kind; places without a part are 0. */
    void parts(String kind, int[] conditions) {
        Places places = new Places();
        for (int place = 0; place < conditions.length; place++) {
            if (conditions[place] != 0) {
                places.add(place, conditions[place] == NORMAL_PART,
                        kind + " " + place + ", condition " + conditions[place]);
            }
        }
        places.addTo(parts, "unit small", kind, conditions.length);
    }

    /** An enclosure, unless it is empty. */
    void enclosure(int number, DiskDrive[] drives, DiskDriveInformation[] information) {
        Places places = new Places();
        for (int slot = 0; slot < drives.length; slot++) {
            if (drives[slot].mount == 0) {
                places.addEmpty(slot);
            } else {
                DiskDriveInformation drive = information[slot];
                places.add(slot, drives[slot].drv_state == NORMAL_DRIVE,
                        "slot " + slot + ", " + drive.drive_type_name + " " + drive.drive_capacity
                                + ", serial " + drive.serial + ", state " + drives[slot].drv_state);
            }
        }
        places.addTo(enclosures, "unit", "drives of unit " + number, drives.length);
    }

    String markup() {
        return "<p class=\"legend\">Places by number<span><i class=\"key good\"></i>normal: condition 1, of a"
                + " drive state 0</span><span><i class=\"key bad\">!</i>another</span>"
                + "<span><i class=\"key empty\"></i>empty</span></p>"
                + "<div class=\"rack\">\n<div class=\"parts\">" + parts + "</div>" + enclosures
                + "</div>\n";
    }
}
