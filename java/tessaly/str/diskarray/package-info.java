/**
 * Disk arrays, as the native library <code>quorvelj</code> knows them.
 *
 * <p>{@link tessaly.str.diskarray.DiskArrayUtilityJNI} has the calls; the other classes are what
 * they take and return. Their fields are reached by name from native code, so names and types are
 * fixed. Texts are cut, by bytes of modified UTF-8, where they are longer than the array library
 * allows.
 *
 * <p>An object that is handed over is read field by field in the order of its declaration. A text,
 * array or object that is null ends the reading, without an exception, and so does an array of
 * numbers or bytes that is too short, with one. What lies behind reaches the array as it lay in
 * memory. So the constructors leave no text null, and in classes that are only handed over no array
 * and no object but the snapshots of performance: texts are empty, arrays are as long as the
 * record's. Keep them so. A class that is also returned begins with its objects, and its arrays but
 * those of bytes, null; get one from the array and change it, or set them all.
 */
package tessaly.str.diskarray;
