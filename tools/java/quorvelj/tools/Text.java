package quorvelj.tools;

/** Bytes as people read them. */
final class Text {
    private Text() {}

    /** UTF-8 as it is; what a terminal cannot print, and what is no UTF-8, as \xNN. */
    static String shown(byte[] bytes, int start, int end) {
        StringBuilder text = new StringBuilder();
        for (int at = start; at < end; ) {
            int length = lengthOfCharacter(bytes, at, end);
            if (length == 0) {
                appendByte(text, bytes[at++]);
                continue;
            }
            int code = codeOf(bytes, at, length);
            for (int index = 0; index < length && !isPrintable(code); ++index) {
                appendByte(text, bytes[at + index]);
            }
            if (isPrintable(code)) {
                text.append(code == '"' || code == '\\' ? "\\" : "").appendCodePoint(code);
            }
            at += length;
        }
        return text.toString();
    }

    /** "1 byte", or "2 bytes". */
    static String count(long number, String what) {
        return number + " " + what + (number == 1 ? "" : "s");
    }

    /** "17", or "17-40". */
    static String range(long first, long last) {
        return first == last ? "" + first : first + "-" + last;
    }

    static String hex(byte value) {
        return "" + Character.forDigit(value >> 4 & 15, 16) + Character.forDigit(value & 15, 16);
    }

    /** The number with this many places behind the point. */
    static String decimal(long value, int places) {
        StringBuilder digits = new StringBuilder(Long.toString(value));
        while (digits.length() <= places) {
            digits.insert(0, '0');
        }
        return digits.insert(digits.length() - places, '.').toString();
    }

    static String left(Object value, int width) {
        StringBuilder text = new StringBuilder(value.toString());
        while (text.length() < width) {
            text.append(' ');
        }
        return text.toString();
    }

    static String right(Object value, int width) {
        StringBuilder text = new StringBuilder();
        String digits = value.toString();
        while (text.length() + digits.length() < width) {
            text.append(' ');
        }
        return text.append(digits).toString();
    }

    private static void appendByte(StringBuilder text, byte value) {
        text.append("\\x").append(hex(value));
    }

    /** 0 where no character begins. */
    private static int lengthOfCharacter(byte[] bytes, int at, int end) {
        int first = bytes[at] & 0xff;
        int length = first < 0x80 ? 1 : first < 0xc2 ? 0 : first < 0xe0 ? 2 : first < 0xf0 ? 3 : 4;
        if (first > 0xf4 || length > end - at) {
            return 0;
        }
        for (int index = 1; index < length; ++index) {
            if ((bytes[at + index] & 0xc0) != 0x80) {
                return 0;
            }
        }
        int code = codeOf(bytes, at, length);
        boolean isTooLong = length == 3 && code < 0x800 || length == 4 && code < 0x10000;
        return isTooLong || !Character.isValidCodePoint(code) ? 0 : length;
    }

    private static int codeOf(byte[] bytes, int at, int length) {
        int code = length == 1 ? bytes[at] : bytes[at] & 0xff >> length + 1;
        for (int index = 1; index < length; ++index) {
            code = code << 6 | bytes[at + index] & 0x3f;
        }
        return code;
    }

    private static boolean isPrintable(int code) {
        switch (Character.getType(code)) {
            case Character.CONTROL:
            case Character.FORMAT:
            case Character.LINE_SEPARATOR:
            case Character.PARAGRAPH_SEPARATOR:
            case Character.PRIVATE_USE:
            case Character.SURROGATE:
            case Character.UNASSIGNED:
                return false;
            default:
                return true;
        }
    }
}
