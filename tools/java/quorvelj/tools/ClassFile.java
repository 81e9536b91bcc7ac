package quorvelj.tools;

import java.io.ByteArrayInputStream;
import java.io.DataInputStream;
import java.io.IOException;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.Set;
import java.util.TreeSet;

/** What a class file declares. The class is not loaded, so none of its code runs. */
final class ClassFile {
    private static final int STATIC = 0x0008;
    private static final int NATIVE = 0x0100;
    private static final int ABSTRACT = 0x0400;

    /** A field or a method. */
    static final class Member {
        final String name;

        /** As JNI writes it: `I`, `()V`. */
        final String signature;

        private final int access;

        Member(String name, String signature, int access) {
            this.name = name;
            this.signature = signature;
            this.access = access;
        }

        boolean isStatic() {
            return (access & STATIC) != 0;
        }

        boolean isNative() {
            return (access & NATIVE) != 0;
        }
    }

    /** Slash form, like that of the superclass, which is "" for none. */
    final String name;

    final String superclass;
    final boolean isAbstract;

    /** The class file format's: 52 is Java 8. */
    final int majorVersion;

    final List<Member> fields;
    final List<Member> methods;

    /** The texts that the code holds. */
    final Set<String> texts = new TreeSet<>();

    /** What the code calls: class, name and signature. */
    final List<String[]> calls = new ArrayList<>();

    /** The classes whose fields the code uses. */
    final Set<String> fieldOwners = new TreeSet<>();

    /** Whether the code has calls that are linked at run time. */
    private boolean isDynamic;

    private ClassFile(DataInputStream in) throws IOException {
        if (in.readInt() != 0xCAFEBABE) {
            throw new IOException("no class file");
        }
        in.readUnsignedShort();
        majorVersion = in.readUnsignedShort();
        Object[] pool = readPool(in);
        isAbstract = (in.readUnsignedShort() & ABSTRACT) != 0;
        name = className(pool, in.readUnsignedShort());
        superclass = className(pool, in.readUnsignedShort());
        for (int interfaces = in.readUnsignedShort(); interfaces > 0; --interfaces) {
            in.readUnsignedShort();
        }
        fields = readMembers(in, pool);
        methods = readMembers(in, pool);
        lookAt(pool);
    }

    /** Reads a class, or throws an `IOException` for what is none. */
    static ClassFile read(byte[] content) throws IOException {
        try {
            return new ClassFile(new DataInputStream(new ByteArrayInputStream(content)));
        } catch (RuntimeException e) {
            throw new IOException("damaged", e);
        }
    }

    boolean isDynamic() {
        return isDynamic;
    }

    /** The entries: a text, or tag and the numbers of other entries. */
    private static Object[] readPool(DataInputStream in) throws IOException {
        Object[] pool = new Object[in.readUnsignedShort()];
        for (int index = 1; index < pool.length; ++index) {
            int tag = in.readUnsignedByte();
            switch (tag) {
                case 1: // a text
                    pool[index] = in.readUTF();
                    break;
                case 7: // a class
                case 8: // a string
                case 16:
                case 19:
                case 20:
                    pool[index] = new int[] {tag, in.readUnsignedShort()};
                    break;
                case 15:
                    pool[index] = new int[] {tag, in.readUnsignedByte(), in.readUnsignedShort()};
                    break;
                case 9: // a field
                case 10: // a method
                case 11: // a method of an interface
                case 12: // name and signature
                case 17:
                case 18:
                    pool[index] = new int[] {tag, in.readUnsignedShort(), in.readUnsignedShort()};
                    break;
                case 3:
                case 4:
                    in.readInt();
                    break;
                case 5:
                case 6:
                    in.readLong();
                    ++index; // A long or a double takes two.
                    break;
                default:
                    throw new IOException("no constant " + tag);
            }
        }
        return pool;
    }

    private static String className(Object[] pool, int index) {
        return index == 0 ? "" : (String) pool[((int[]) pool[index])[1]];
    }

    private static List<Member> readMembers(DataInputStream in, Object[] pool) throws IOException {
        Member[] members = new Member[in.readUnsignedShort()];
        for (int index = 0; index < members.length; ++index) {
            int access = in.readUnsignedShort();
            String name = (String) pool[in.readUnsignedShort()];
            members[index] = new Member(name, (String) pool[in.readUnsignedShort()], access);
            for (int attributes = in.readUnsignedShort(); attributes > 0; --attributes) {
                in.readUnsignedShort();
                for (long rest = in.readInt() & 0xFFFFFFFFL; rest > 0; ) {
                    int skipped = in.skipBytes((int) Math.min(rest, 1 << 20));
                    if (skipped == 0) {
                        throw new IOException("truncated");
                    }
                    rest -= skipped;
                }
            }
        }
        return Arrays.asList(members);
    }

    private void lookAt(Object[] pool) {
        for (Object constant : pool) {
            if (!(constant instanceof int[])) {
                continue;
            }
            int[] entry = (int[]) constant;
            switch (entry[0]) {
                case 8:
                    texts.add((String) pool[entry[1]]);
                    break;
                case 9:
                    fieldOwners.add(className(pool, entry[1]));
                    break;
                case 10:
                case 11:
                    int[] called = (int[]) pool[entry[2]];
                    calls.add(
                            new String[] {
                                className(pool, entry[1]),
                                (String) pool[called[1]],
                                (String) pool[called[2]]
                            });
                    break;
                case 17:
                case 18:
                    isDynamic = true;
                    break;
                default:
                    break;
            }
        }
    }
}
