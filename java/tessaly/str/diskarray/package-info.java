/**
 * Disk arrays, as the native library <code>quorvelj</code> knows them.
 *
 * <p>{@link tessaly.str.diskarray.DiskArrayUtilityJNI} has the calls; the other classes are what
 * they take and return. Their fields are reached by name from native code, so names and types are
 * fixed. An object that is handed over is read field by field in the order of its declaration, up
 * to the first text or object that is null: set them all. Texts are cut, by bytes of modified UTF-8,
 * where they are longer than the array library allows.
 */
package tessaly.str.diskarray;
