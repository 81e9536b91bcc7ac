package tessaly.str.diskarray;

/**
 * The calls of the array library. What holds for all of them, where a method says nothing else:
 *
 * <ul>
 * <li>A unit is named by the name that it was registered under. A session is what
 *     {@link #QV_LoginQVAccount} returned for this unit.
 * <li>A name or a path that is null throws code 258, and nothing is called. A text that is longer
 *     than a method or a field takes, in bytes of modified UTF-8, is cut without a word. A unit's name
 *     has at most 64 bytes.
 * <li>An object is read field by field. One that is null reaches the library as it lay in memory, and
 *     so does the rest of an object from a text, an array or an object in it on that is null. Nothing
 *     is thrown. New objects hold no null but where the comment of a field or of its class says so.
 * <li>An array of ints or bytes in a request has at least the elements that its comment gives. A
 *     shorter one is an {@link ArrayIndexOutOfBoundsException}. The library is called nevertheless;
 *     its refusal takes the exception's place, or 2817 where an object is returned.
 * <li>An array that has "at most" so many elements is read to its end, and no further than that. What
 *     lies behind its end reaches the library as it lay in memory.
 * <li>An int that has the range of a byte is handed over with its low byte.
 * <li>An array of a result always has the elements that its comment gives, in use or not.
 * <li>A number of 64 bits is in two fields, <code>_h</code> and <code>_l</code>:
 *     <code>(long) h &lt;&lt; 32 | l &amp; 0xFFFFFFFFL</code>.
 * <li>A capacity in two fields counts blocks of 512 bytes. That is how the simulator counts; the
 *     library's own declarations must confirm it.
 * <li>What is called the library's own passes as it is.
 * <li>{@link DiskArrayException} has the library's code where the library refuses, and 2817 where the
 *     result could not be built. Nothing is thrown for the library's code 256: the method returns
 *     null, 0 or nothing.
 * <li>{@link OutOfMemoryError} with an empty message: there is no native memory for the records, or
 *     the library's code is 65535.
 * <li>Any thread may call. The calls share nothing but the library.
 * </ul>
 *
 * The first use loads quorvel and quorvelj from <code>java.library.path</code>;
 * {@link UnsatisfiedLinkError} says what is missing.
 */
public class DiskArrayUtilityJNI {
    static {
        // Windows does not look for quorvel.dll in the directory of quorvelj.dll, but takes one that is
        // loaded already.
        try {
            System.loadLibrary("quorvel");
        } catch (UnsatisfiedLinkError notOnThePath) {
            // It may be where the system itself looks.
        }
        System.loadLibrary("quorvelj");
    }

    // Unit registration

    /**
     * Registers a unit under <code>param.unit_name</code>.
     *
     * @param param the unit; not null
     * @throws DiskArrayException with the library's code
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_UnitAdd(QVUnitParam param) throws DiskArrayException;

    /**
     * Registers a unit by its address.
     *
     * @param param the unit, with an address; not null
     * @throws DiskArrayException with the library's code
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_UnitAddByIP(QVUnitParam param) throws DiskArrayException;

    /**
     * Changes a registered unit.
     *
     * @param unit the name that it is registered under
     * @param param the unit as it is to be, with all its fields; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_UnitChange(String unit, QVUnitParam param) throws DiskArrayException;

    /**
     * Changes a registered unit by its address.
     *
     * @param unit the name that it is registered under
     * @param param the unit as it is to be, with all its fields; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_UnitChangeByIP(String unit, QVUnitParam param) throws DiskArrayException;

    /**
     * Takes a unit from the list.
     *
     * @param unit the unit's registered name
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native void QV_UnitDelete(String unit) throws DiskArrayException;

    /**
     * Returns a registered unit.
     *
     * @param unit the unit's registered name
     * @return the unit
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QVUnitParam QV_GetUnitParam(String unit) throws DiskArrayException;

    /**
     * Returns the number of registered units.
     *
     * @return the number, or -1 for the library's code 256
     * @throws DiskArrayException with the library's code
     */
    public native int QV_GetUnitCount() throws DiskArrayException;

    /**
     * Returns an array of <code>count</code> elements: the registered units, and behind them
     * elements of empty texts and zeros. Time and memory follow from the count, whatever number of
     * units is registered: hand over what {@link #QV_GetUnitCount} returned. The elements from one
     * that could not be built on are null.
     *
     * @param count how many elements
     * @return the units; null where there is no native memory for as many, or the count is negative
     * @throws DiskArrayException with the library's code; -1 where the array cannot be made
     */
    public native QVUnitParam[] QV_GetUnitParamTable(int count) throws DiskArrayException;

    /**
     * Looks for a unit on the network.
     *
     * @param request where to look; not null
     * @return the unit that was found
     * @throws DiskArrayException with the library's code; 2817 where the result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native DiscoverUnit QV_DiscoverUnitInformation(DiscoverUnitRequest request)
            throws DiskArrayException;

    /**
     * Looks for a unit on the network, in the extended form.
     *
     * @param request where to look; not null
     * @return the unit that was found
     * @throws DiskArrayException with the library's code; 2817 where the result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native DiscoverUnit QV_DiscoverUnitInformationEx(DiscoverUnitRequest request)
            throws DiskArrayException;

    /**
     * Attaches additional units to a registered one.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request how to attach them; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_AddAdditionalUnit(
            String unit, QVSessionInfo session, AdditionalUnitRequest request)
            throws DiskArrayException;

    /**
     * Returns the additional units of a registered one.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the additional units
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native AdditionalUnitInformation QV_GetAdditionalUnitInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    // Unit login, session and array users

    /**
     * Logs in to a unit with a user of the array's own list. A text that could not be made is null.
     *
     * @param unit the unit's registered name
     * @param mode the library's own value
     * @param user the user; null is one with empty texts
     * @return two texts, or null where the array names nobody
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     */
    public native String[] QV_LoginQVUnit(String unit, int mode, ArrayUser user)
            throws DiskArrayException;

    /**
     * Returns who is logged in, as {@link #QV_LoginQVUnit} does.
     *
     * @param unit the unit's registered name
     * @param mode the library's own value
     * @return two texts, or null where the array names nobody
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     */
    public native String[] QV_GetLoginUser(String unit, int mode) throws DiskArrayException;

    /**
     * Logs out of a unit.
     *
     * @param unit the unit's registered name
     * @param mode the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native void QV_LogoutQVUnit(String unit, int mode) throws DiskArrayException;

    /**
     * Checks the login of a unit.
     *
     * @param unit the unit's registered name
     * @param mode the library's own value
     * @return the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native int QV_CheckLogin(String unit, int mode) throws DiskArrayException;

    /**
     * Resets the login of a unit.
     *
     * @param unit the unit's registered name
     * @param mode the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native void QV_ResetLogin(String unit, int mode) throws DiskArrayException;

    /**
     * Keeps a session from ending by itself.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_KeepSession(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Tests whether a unit is ready: throws the library's code where it is not.
     *
     * @param unit the unit's registered name
     * @param mode the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native void QV_TestUnitReady(String unit, int mode) throws DiskArrayException;

    /**
     * Restarts a unit.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_UnitReboot(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the password of the library.
     *
     * @param password the new password, at most 1,023 bytes
     * @throws DiskArrayException with the library's code; 258 where password is null
     */
    public native void QV_PasswdChange(String password) throws DiskArrayException;

    /**
     * Checks the password of the library. A copy of the text stays in memory for good.
     *
     * @param password the password, of any length
     * @return the library's 0, -1 or 256; 2817 where Java has no memory for the text
     * @throws DiskArrayException with the library's code; 258 where password is null
     */
    public native int QV_PasswdCheck(String password) throws DiskArrayException;

    /**
     * Adds a user to the array's own list.
     *
     * @param unit the unit's registered name
     * @param number user number, the library's own value
     * @param user the user; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_RegistUser(String unit, int number, ArrayUser user)
            throws DiskArrayException;

    /**
     * Changes a user of the array's own list.
     *
     * @param unit the unit's registered name
     * @param number user number, the library's own value
     * @param oldUser the user until now; not null
     * @param newUser the user from now on; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ChangeUser(
            String unit, int number, ArrayUser oldUser, ArrayUser newUser)
            throws DiskArrayException;

    /**
     * Takes a user from the array's own list.
     *
     * @param unit the unit's registered name
     * @param number user number, the library's own value
     * @param user the user; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_DeleteUser(String unit, int number, ArrayUser user)
            throws DiskArrayException;

    /**
     * Empties the array's own list of users.
     *
     * @param unit the unit's registered name
     * @param number user number, the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native void QV_DeleteAllUser(String unit, int number) throws DiskArrayException;

    /**
     * Returns the state of the array's own list of users.
     *
     * @param unit the unit's registered name
     * @param number user number, the library's own value
     * @return the state of the list
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QVUserRegist QV_GetUserInformation(String unit, int number)
            throws DiskArrayException;

    /**
     * Returns what kind of array a unit is, and its numbers of logical objects and parts.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the unit
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native UnitInformation QV_GetUnitInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the kind of each controller's ports.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the kinds
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native CTLPortKind QV_GetUnitCTLPortKind(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the time of a unit's clock. Each call keeps 32 bytes of native memory for good.
     *
     * @param unit the unit's registered name; null is an empty one
     * @param session the session from a login
     * @return the time; null where it cannot be built, without code 2817
     * @throws DiskArrayException with the library's code
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QVTime QV_GetUnitTime(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets a unit's clock. Each call keeps 32 bytes of native memory for good.
     *
     * @param unit the unit's registered name; null is an empty one
     * @param session the session from a login
     * @param time the time
     * @throws DiskArrayException with the library's code; -1 where time is null and 2817 where time
     *     or session cannot be read, both without a call of the library
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetUnitTime(String unit, QVSessionInfo session, QVTime time)
            throws DiskArrayException;

    /**
     * Sets a unit's clock to the time that it is now. Each call keeps 32 bytes of native memory for
     * good.
     *
     * @param unit the unit's registered name; null is an empty one
     * @param session the session from a login
     * @throws DiskArrayException with the library's code
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetUnitTimeNow(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns how an array identifies itself.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return its identifier
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native UnitIdentifier QV_GetUnitIdentifier(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets how an array identifies itself. Layout assumed: 32 bytes have no field, and reach the
     * library as they lay in memory. Confirm the layout before the first call on an array in use.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param identifier its identifier; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetUnitIdentifier(
            String unit, QVSessionInfo session, UnitIdentifier identifier)
            throws DiskArrayException;

    /**
     * Returns the settings of an array for its time.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the settings
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native TimeInfo QV_GetTimeInfo(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the settings of an array for its time. Layout assumed: 660 bytes have no field, and
     * reach the library as they lay in memory. Confirm the layout before the first call on an array
     * in use.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param info the settings; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetTimeInfo(String unit, QVSessionInfo session, TimeInfo info)
            throws DiskArrayException;

    // Unit condition

    /**
     * Returns the condition of every replaceable part.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option the library's own value; the simulator leaves it aside
     * @return the conditions
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native UnitCondition QV_GetUnitCondition(
            String unit, QVSessionInfo session, int option) throws DiskArrayException;

    /**
     * Returns the summary of an array to a user, or to a session that is open. It needs no login
     * before.
     *
     * @param unit the unit's registered name
     * @param request who asks; not null
     * @return the summary; over the simulator also where the caller is refused
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ArrayCondition QV_GetArrayCondition(String unit, ArrayConditionRequest request)
            throws DiskArrayException;

    // All-information bundles

    /**
     * Returns all that the array tells of itself: 76 MB, more than a million objects. A slice costs
     * less.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return all of it
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ArrayAllInformation QV_GetAllInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the same with compact pairs, as {@link #QV_GetPairInformationLite2} has them.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return all of it
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ArrayAllInformation QV_GetAllInformationLite(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Returns a slice: the unit, its drives, RAID groups and LUs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the controllers that are asked; not null
     * @return the slice
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ArrayAllInfo_Base QV_GetAllInfo_Base(
            String unit, QVSessionInfo session, ControllerRequest request) throws DiskArrayException;

    /**
     * Returns a slice: parameters of host groups, cache partitions and port kinds.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the controllers that are asked; not null
     * @return the slice
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ArrayAllInfo_BaseAdditional QV_GetAllInfo_BaseAdditional(
            String unit, QVSessionInfo session, ControllerRequest request) throws DiskArrayException;

    /**
     * Returns a slice: host groups.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the controllers that are asked; not null
     * @return the slice
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ArrayAllInfo_HG QV_GetAllInfo_HG(
            String unit, QVSessionInfo session, ControllerRequest request) throws DiskArrayException;

    /**
     * Returns a slice: iSCSI ports.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the controllers that are asked; not null
     * @return the slice
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ArrayAllInfo_iSCSI QV_GetAllInfo_iSCSI(
            String unit, QVSessionInfo session, ControllerRequest request) throws DiskArrayException;

    /**
     * Returns a slice: the LU mapping.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the controllers that are asked; not null
     * @return the slice
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ArrayAllInfo_Mapping QV_GetAllInfo_Mapping(
            String unit, QVSessionInfo session, ControllerRequest request) throws DiskArrayException;

    /**
     * Returns a slice: host group options.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the controllers that are asked; not null
     * @return the slice
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ArrayAllInfo_Host QV_GetAllInfo_Host(
            String unit, QVSessionInfo session, ControllerRequest request) throws DiskArrayException;

    /**
     * Returns a slice: ports, LAN and settings.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the controllers that are asked; not null
     * @return the slice
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ArrayAllInfo_Config QV_GetAllInfo_Config(
            String unit, QVSessionInfo session, ControllerRequest request) throws DiskArrayException;

    /**
     * Returns a slice: program products.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the controllers that are asked; not null
     * @return the slice
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ArrayAllInfo_PP QV_GetAllInfo_PP(
            String unit, QVSessionInfo session, ControllerRequest request) throws DiskArrayException;

    /**
     * Returns a slice: pools, pairs and remote paths.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the controllers that are asked; not null
     * @return the slice
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ArrayAllInfo_Replication QV_GetAllInfo_Replication(
            String unit, QVSessionInfo session, ControllerRequest request) throws DiskArrayException;

    /**
     * Returns a slice: tuning.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the controllers that are asked; not null
     * @return the slice
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ArrayAllInfo_Tuning QV_GetAllInfo_Tuning(
            String unit, QVSessionInfo session, ControllerRequest request) throws DiskArrayException;

    // Drives and parts

    /**
     * Returns what one drive is.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param first the library's own value; over the simulator the enclosure
     * @param second the library's own value; over the simulator the slot
     * @return the drive
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native DiskDriveInformation QV_GetDriveInformation(
            String unit, QVSessionInfo session, int first, int second) throws DiskArrayException;

    /**
     * Returns what the drives are in the flat form, 450 elements. The elements from one that could
     * not be built on are null.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the drives; null where there is no array for them
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native DiskDriveInformation[] QV_GetDriveInformationAll(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Returns what the drives are, by enclosure.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the drives, 60 enclosures of 30 slots
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native DiskDriveInformationAll QV_GetDiskDriveInformationAll(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Returns the state of the drives, by enclosure.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the states, 60 enclosures of 30 slots
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native DiskDriveStatusAll QV_GetDiskDriveStatusAll(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the state of the drives in the flat form, 450 elements. An element that could not be
     * built is null. Each call keeps 32 bytes of native memory for good.
     *
     * @param unit the unit's registered name; null is an empty one
     * @param session the session from a login
     * @return the states; null where there is no array for them
     * @throws DiskArrayException with the library's code
     * @throws OutOfMemoryError where there is no native memory
     */
    public native DiskDrive[] QV_GetDriveStatus(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns how far the reconstruction of a drive has come.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param first the library's own value
     * @param second the library's own value
     * @return how far it has come
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native DriveReconstructInformation QV_DriveReconstructInformation(
            String unit, QVSessionInfo session, int first, int second) throws DiskArrayException;

    /**
     * Returns how drives are restored and spared.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the settings
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native DiskDriveRestoration QV_GetDiskDriveRestoration(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Sets how drives are restored and spared.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param restoration the settings; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetDiskDriveRestoration(
            String unit, QVSessionInfo session, DiskDriveRestoration restoration)
            throws DiskArrayException;

    /**
     * Returns how SATA drives are maintained.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the settings
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native SATADriveInformation QV_GetSATADriveInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Sets how SATA drives are maintained.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param information the settings; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetSATADriveInformation(
            String unit, QVSessionInfo session, SATADriveInformation information)
            throws DiskArrayException;

    /**
     * Returns how SATA drives are restored.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the settings
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native SATADriveRestoration QV_GetSATADriveRestoration(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Sets how SATA drives are restored.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param restoration the settings; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetSATADriveRestoration(
            String unit, QVSessionInfo session, SATADriveRestoration restoration)
            throws DiskArrayException;

    /**
     * Returns how drives' response times are diagnosed.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the settings
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native DriveResponseDiag QV_GetDriveResponseDiag(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets how drives' response times are diagnosed.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param diagnosis the settings; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetDriveResponseDiag(
            String unit, QVSessionInfo session, DriveResponseDiag diagnosis)
            throws DiskArrayException;

    /**
     * Sets the mode of a drive.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param first the library's own value
     * @param second the library's own value
     * @param third the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetDriveMode(
            String unit, QVSessionInfo session, int first, int second, int third)
            throws DiskArrayException;

    /**
     * Returns the power saving by RAID group and by logical unit.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the power saving
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native SpinDownUpInformation QV_GetSpinDownUpInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Spins down the drives of a RAID group.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param raidGroup number of the RAID group
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SpinDownDriveByRG(String unit, QVSessionInfo session, int raidGroup)
            throws DiskArrayException;

    /**
     * Spins up the drives of a RAID group.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param raidGroup number of the RAID group
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SpinUpDriveByRG(String unit, QVSessionInfo session, int raidGroup)
            throws DiskArrayException;

    /**
     * Returns what the parts of an array are.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the parts
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native PartsList QV_GetPartsList(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Writes the parts of an array to a file.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param path path of the file, at most 1,023 bytes
     * @throws DiskArrayException with the library's code; 258 where unit or path is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_PartsListExport(String unit, QVSessionInfo session, String path)
            throws DiskArrayException;

    /**
     * Returns the parts that failed.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the parts
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ObstPartsInformation QV_GetObstPartsInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Returns the enclosure controllers, and how far the replacement of their microprogram has
     * come.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the enclosure controllers
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ENCStatusList QV_GetENCStatusList(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the batteries of an array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the batteries
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native BatteryConfig QV_GetBatteryConfig(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the batteries of an array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param config the batteries; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetBatteryConfig(String unit, QVSessionInfo session, BatteryConfig config)
            throws DiskArrayException;

    /**
     * Returns which locate LEDs are lit.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the LEDs
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native LocateLEDInformation QV_GetLocateLEDInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Sets which locate LEDs are lit: change those of {@link #QV_GetLocateLEDInformation}.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param information the LEDs; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetLocateLEDInformation(
            String unit, QVSessionInfo session, LocateLEDInformation information)
            throws DiskArrayException;

    /**
     * Returns the pinned data.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the pinned data
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native PINInformation QV_GetIntegrationPinInfo(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the pinned data in the short form.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return a value for each logical unit, 8,192 elements: the library's own
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native int[] QV_GetPinInfo2(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Flushes the pinned data.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_FlushPinInfo(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the library's number on pinned data.
     *
     * @param unit the unit's registered name
     * @param option the library's own value
     * @return the library's number
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native int QV_GetPinInfo(String unit, int option) throws DiskArrayException;

    /**
     * Returns the library's number on the time of getting pinned data.
     *
     * @param unit the unit's registered name
     * @param option the library's own value
     * @return the library's number
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native int QV_GetPinInfoGetTime(String unit, int option) throws DiskArrayException;

    // Performance collection and output. Snapshots come in pairs, an element a controller.

    /**
     * Returns the command counts of the LUs up to 4,095: a light snapshot. The elements from one
     * that could not be built on are null. Each call keeps 32 bytes of native memory for good.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the counts by controller, 2 elements; null where there is no array for them
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native StatisticalCommand[] QV_GetPerformance(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns all counters: a snapshot of 7 MB. The elements from one that could not be built on
     * are null. Each call keeps 32 bytes of native memory for good.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option the library's own value; the simulator leaves it aside
     * @return the counters by controller, 2 elements; null where there is no array for them
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory for the session. Without memory for
     *     the counters the library is called without them.
     */
    public native PerformanceAll[] QV_GetPerformanceAll(
            String unit, QVSessionInfo session, int option) throws DiskArrayException;

    /**
     * Writes the command counts of an interval to a file. A snapshot that is null reaches the
     * library as it lay in memory.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param path path of the file, at most 1,023 bytes
     * @param preinfo0 snapshot of controller 0 before the interval
     * @param afterinfo0 snapshot of controller 0 after the interval
     * @param preinfo1 snapshot of controller 1 before the interval
     * @param afterinfo1 snapshot of controller 1 after the interval
     * @throws DiskArrayException with the library's code; 258 where unit or path is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_PerformanceOutput(
            String unit, QVSessionInfo session, String path, StatisticalCommand preinfo0,
            StatisticalCommand afterinfo0, StatisticalCommand preinfo1,
            StatisticalCommand afterinfo1) throws DiskArrayException;

    /**
     * Writes the command counts of an interval to a file, for the LUs that are selected. A snapshot
     * that is null reaches the library as it lay in memory.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param path path of the file, at most 1,023 bytes
     * @param preinfo0 snapshot of controller 0 before the interval
     * @param afterinfo0 snapshot of controller 0 after the interval
     * @param preinfo1 snapshot of controller 1 before the interval
     * @param afterinfo1 snapshot of controller 1 after the interval
     * @param lu selects LUs, 4,096 bytes, the library's own values; null is all zeros
     * @param option0 the library's own value
     * @param option1 the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit or path is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where lu is shorter; the library was called
     *     nevertheless
     */
    public native void QV_PerformanceOutputLU(
            String unit, QVSessionInfo session, String path, StatisticalCommand preinfo0,
            StatisticalCommand afterinfo0, StatisticalCommand preinfo1,
            StatisticalCommand afterinfo1, byte[] lu, int option0, int option1)
            throws DiskArrayException;

    /**
     * Writes the counters of an interval to a file.
     *
     * <p>Layout assumed: 104 bytes have no field, and reach the library as they lay in memory.
     * Confirm the layout before the first call on an array in use.
     *
     * @param unit the unit's registered name
     * @param request the snapshots, and what to write of them; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_PerformanceOutputAll(String unit, PerformanceOutputAllRequest request)
            throws DiskArrayException;

    /**
     * Writes the counters of an interval to a file, in the extended form.
     *
     * <p>Layout assumed: 412 bytes have no field, and reach the library as they lay in memory.
     * Confirm the layout before the first call on an array in use.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the snapshots, and what to write of them; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_PerformanceOutputAllEx(
            String unit, QVSessionInfo session, PerformanceOutputAllExRequest request)
            throws DiskArrayException;

    /**
     * Writes to a performance file that a time is skipped, as the method's name says.
     *
     * @param unit the unit's registered name
     * @param path path of the file, at most 1,023 bytes
     * @param time the time; not null
     * @param option the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit or path is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_PerformanceOutputSkip(String unit, String path, QVTime time, int option)
            throws DiskArrayException;

    /**
     * Writes a part of a collection as CSV.
     *
     * <p>Layout assumed: 256 bytes have no field, and reach the library as they lay in memory.
     * Confirm the layout before the first call on an array in use.
     *
     * @param path path of the collection, at most 1,023 bytes
     * @param request the part, and where to write it; not null
     * @throws DiskArrayException with the library's code; 258 where path is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_PerformanceOutputCSV(String path, PerformanceOutputCSVRequest request)
            throws DiskArrayException;

    /**
     * Returns the number of CSV files of a part of a collection.
     *
     * <p>Layout assumed: 256 bytes have no field, and reach the library as they lay in memory.
     * Confirm the layout before the first call on an array in use.
     *
     * @param path path of the collection, at most 1,023 bytes
     * @param request the part, and where to write it; not null
     * @return the number of files
     * @throws DiskArrayException with the library's code; 258 where path is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native int QV_GetPerformanceCSVNum(String path, PerformanceOutputCSVRequest request)
            throws DiskArrayException;

    /**
     * Computes the graph of an interval, the first of the two that the library computes.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the snapshots; not null
     * @return the graph
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native PerformanceCollectGraphInfo QV_PerformanceOutputGraphInfo(
            String unit, QVSessionInfo session, PerformanceOutputGraphInfoRequest request)
            throws DiskArrayException;

    /**
     * Begins a collection.
     *
     * @param session the session from a login
     * @param path path of the collection, at most 1,023 bytes
     * @param option0 the library's own value; over the simulator the interval
     * @param option1 the library's own value
     * @throws DiskArrayException with the library's code; 258 where path is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_PerformanceDataInitialize(
            QVSessionInfo session, String path, int option0, int option1)
            throws DiskArrayException;

    /**
     * Adds the graph of an interval to a collection.
     *
     * <p>Layout assumed: 864,488 bytes have no field, and reach the library as they lay in memory.
     * Confirm the layout before the first call on an array in use.
     *
     * @param path path of the collection, at most 1,023 bytes
     * @param graph the graph; not null
     * @throws DiskArrayException with the library's code; 258 where path is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_PerformanceDataOutput(String path, PerformanceCollectGraphInfo graph)
            throws DiskArrayException;

    /**
     * Returns the content of a collection's management file.
     *
     * @param path path of the file, at most 1,023 bytes
     * @return its content
     * @throws DiskArrayException with the library's code; 258 where path is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native PerformanceMngInfo QV_PerformanceInputMngFile(String path)
            throws DiskArrayException;

    /**
     * Returns the largest number of performance files.
     *
     * @return the number of files
     * @throws DiskArrayException with the library's code
     */
    public native int QV_GetPfmFileMaxCount() throws DiskArrayException;

    /**
     * Returns the statistics switch of a unit.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the switch, the library's own value; over the simulator 0 for off
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native int QV_GetPfmStatisCfg(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the statistics switch of a unit.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param enabled the switch, the library's own value; over the simulator 0 for off
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetPfmStatisCfg(String unit, QVSessionInfo session, int enabled)
            throws DiskArrayException;

    /**
     * Returns the drive error thresholds.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the thresholds
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native Threshold QV_GetThreshold(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the drive error thresholds.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param threshold the thresholds; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetThreshold(String unit, QVSessionInfo session, Threshold threshold)
            throws DiskArrayException;

    // Statistical information

    /**
     * Returns the array's internal counters.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option the library's own value; the simulator leaves it aside
     * @return the counters
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native StatisticalInformation QV_GetStatisticalInformation(
            String unit, QVSessionInfo session, int option) throws DiskArrayException;

    // RAID groups

    /**
     * Returns the RAID groups in the short form, always 90 elements. The elements from one that
     * could not be built on are null.
     *
     * @param unit the unit's registered name
     * @return the RAID groups, 90 elements; null where there is no array for them
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native RaidGroup[] QV_GetRaidGroups(String unit) throws DiskArrayException;

    /**
     * Adds a RAID group.
     *
     * @param unit the unit's registered name
     * @param group the RAID group; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_RaidGroupAdd(String unit, RaidGroup group) throws DiskArrayException;

    /**
     * Expands a RAID group.
     *
     * @param unit the unit's registered name
     * @param group the RAID group; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_RaidGroupExpand(String unit, RaidGroup group) throws DiskArrayException;

    /**
     * Deletes a RAID group.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param rgnum the number of the RAID group
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_RaidGroupDelete(String unit, QVSessionInfo session, int rgnum)
            throws DiskArrayException;

    /**
     * Deletes all RAID groups.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_RaidGroupAllDelete(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Creates a RAID group of chosen drives.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the RAID group and its drives; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_CreateRaidGroup(
            String unit, QVSessionInfo session, CreateRaidGroup request) throws DiskArrayException;

    /**
     * Returns the RAID groups with their drives.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the RAID groups and their drives
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native RaidGroupInformation QV_GetRaidGroupInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Returns the areas of a RAID group.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param rgnum the number of the RAID group
     * @return its areas
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native RGAreaInformation QV_GetRGAreaInformation(
            String unit, QVSessionInfo session, int rgnum) throws DiskArrayException;

    /**
     * Returns what a RAID group would be, without creating it.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the RAID group and its drives; not null
     * @return the RAID group as it would be
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native RgDetail QV_GetRaidGroupCreationCapacity(
            String unit, QVSessionInfo session, CreateRaidGroup request) throws DiskArrayException;

    // Logical units and formatting

    /**
     * Returns the LUs, always 8,192 elements. The elements from one that could not be built on are
     * null.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the LUs, 8,192 elements; those in use have a <code>lu_valid</code> other than 0. Null
     *     where there is no array for them
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native LogicalUnit[] QV_GetLogicalUnit(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns one LU.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param lun the LU number
     * @return the LU
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native LogicalUnit QV_GetLogicalUnit1(String unit, QVSessionInfo session, int lun)
            throws DiskArrayException;

    /**
     * Returns the number of the last LU.
     *
     * @param unit the unit's registered name
     * @return the LU number; what it is where there is no LU is the library's own
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native int QV_GetLastLogicalUnit(String unit) throws DiskArrayException;

    /**
     * Creates an LU.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the LU; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where <code>befor_lun</code> is too short; the library
     *     was called nevertheless
     */
    public native void QV_CreateLogicalUnit(
            String unit, QVSessionInfo session, LogicalUnitCreationRequest request)
            throws DiskArrayException;

    /**
     * Adds an LU.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param record the LU; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_LogicalUnitAdd(String unit, QVSessionInfo session, LogicalUnit record)
            throws DiskArrayException;

    /**
     * Deletes an LU; which one is the library's own.
     *
     * @param unit the unit's registered name
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native void QV_LogicalUnitDelete(String unit) throws DiskArrayException;

    /**
     * Deletes all LUs.
     *
     * @param unit the unit's registered name
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native void QV_LogicalUnitDeleteAll(String unit) throws DiskArrayException;

    /**
     * Deletes an LU.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param lun the LU number
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_LogicalUnitDeleteByLUN(String unit, QVSessionInfo session, int lun)
            throws DiskArrayException;

    /**
     * Expands an LU.
     *
     * @param unit the unit's registered name
     * @param first the library's own value
     * @param second the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native void QV_LogicalUnitExpand(String unit, int first, int second)
            throws DiskArrayException;

    /**
     * Changes the staging of an LU.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param first the library's own value
     * @param second the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_LogicalUnitChangeStaging(
            String unit, QVSessionInfo session, int first, int second) throws DiskArrayException;

    /**
     * Changes the controller of an LU.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param value the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_LogicalUnitChangeCtl(String unit, QVSessionInfo session, int value)
            throws DiskArrayException;

    /**
     * Invalidates an LU.
     *
     * @param unit the unit's registered name
     * @param lun the LU number
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native void QV_LogicalUnitInvalid(String unit, int lun) throws DiskArrayException;

    /**
     * Restores an LU.
     *
     * @param unit the unit's registered name
     * @param lun the LU number
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native void QV_LogicalUnitRestore(String unit, int lun) throws DiskArrayException;

    /**
     * Reallocates an LU.
     *
     * @param unit the unit's registered name
     * @param request the LU, its size and its new number; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_LogicalUnitRealloc(String unit, LogicalUnitReallocationRequest request)
            throws DiskArrayException;

    /**
     * Formats an LU.
     *
     * @param unit the unit's registered name
     * @param first the library's own value
     * @param second the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native void QV_LogicalUnitFormat(String unit, int first, int second)
            throws DiskArrayException;

    /**
     * Returns how far the formatting of an LU is.
     *
     * @param unit the unit's registered name
     * @param lun the LU number
     * @return how far it is, the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native int QV_LogicalUnitFormatStatus(String unit, int lun) throws DiskArrayException;

    /**
     * Has the controller format an LU at once.
     *
     * @param unit the unit's registered name
     * @param first the library's own value
     * @param second the library's own value
     * @return the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native int QV_LogicalUnitFormatImmediateCTL(String unit, int first, int second)
            throws DiskArrayException;

    /**
     * Returns how far the formatting of each LU is. A list that cannot be built is null, with the
     * error that the JVM has for it and no 2817.
     *
     * @param unit the unit's registered name; null is an empty one
     * @return the list, 2,048 LUs
     * @throws DiskArrayException with the library's code
     * @throws OutOfMemoryError where there is no native memory
     */
    public native LuFormatStatusList QV_LogicalUnitFormatStatusList(String unit)
            throws DiskArrayException;

    /**
     * Enters LUs for formatting.
     *
     * @param unit the unit's registered name
     * @param list a byte for each LU; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where <code>lu</code> is too short; the library was
     *     called nevertheless
     */
    public native void QV_EntryFormatList(String unit, FormatEntryList list)
            throws DiskArrayException;

    /**
     * Returns how far the LUs that were entered for formatting are.
     *
     * @param unit the unit's registered name
     * @return the list, 2,048 LUs
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native FormatStatusList QV_GetFormatStatusList(String unit) throws DiskArrayException;

    /**
     * Returns how quick formats are run.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the settings
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QuickFormatOption QV_GetQuickFormatOption(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets how quick formats are run.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option the settings; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetQuickFormatOption(
            String unit, QVSessionInfo session, QuickFormatOption option) throws DiskArrayException;

    /**
     * Enters LUs for a quick format.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param list a byte for each LU; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where <code>lu</code> is too short; the library was
     *     called nevertheless
     */
    public native void QV_EntryQuickFormatList(
            String unit, QVSessionInfo session, QuickFormatEntryList list)
            throws DiskArrayException;

    /**
     * Returns how far the quick formats are.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the list, 8,192 LUs
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QuickFormatStatusList QV_GetQuickFormatStatusList(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Enters LUs for a correction of their parity.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the LUs; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where <code>lu</code> is too short; the library was
     *     called nevertheless
     */
    public native void QV_EntryParityCorrectionList(
            String unit, QVSessionInfo session, ParityCorrectionRequest request)
            throws DiskArrayException;

    /**
     * Returns how far the parity corrections are.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the list, 8,192 LUs
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ParityCorrectionStatusList QV_GetParityCorrectionStatusList(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Returns the controllers that own the LUs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the LUs and their controllers
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native LuOwnership QV_GetLuOwnership(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the controller that owns an LU.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param info the LU and its controllers; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetLuOwnership(String unit, QVSessionInfo session, LuOwnershipInfo info)
            throws DiskArrayException;

    // Pools, virtual volumes and special LUs

    /**
     * Returns the pools.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the pools of single controllers and of the whole array
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native PoolInfo QV_GetPoolInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Changes the settings of a pool.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pool and its new settings; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ChangePoolInformation(
            String unit, QVSessionInfo session, PoolChangeRequest request)
            throws DiskArrayException;

    /**
     * Adds an LU to a pool.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param first the library's own value
     * @param second the library's own value
     * @param third the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_PoolLUAdd(
            String unit, QVSessionInfo session, int first, int second, int third)
            throws DiskArrayException;

    /**
     * Adds several LUs to a pool.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, the library's own number
     * @param pool the pool number
     * @param list the LUs; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where <code>lu</code> is too short; the library was
     *     called nevertheless
     */
    public native void QV_PoolLUAddList(
            String unit, QVSessionInfo session, int controller, int pool, PoolLUListRequest list)
            throws DiskArrayException;

    /**
     * Takes all LUs from a pool.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param first the library's own value
     * @param second the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_PoolLUAllDelete(String unit, QVSessionInfo session, int first, int second)
            throws DiskArrayException;

    /**
     * Creates a virtual volume.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param first the library's own value
     * @param second the library's own value
     * @param third the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_CreateVVOL(
            String unit, QVSessionInfo session, int first, int second, int third)
            throws DiskArrayException;

    /**
     * Creates a virtual volume of a given capacity.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param volume the volume; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_CreateVVOLEx(
            String unit, QVSessionInfo session, VvolDetailInformation volume)
            throws DiskArrayException;

    /**
     * Deletes a virtual volume.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param first the library's own value
     * @param second the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_DeleteVVOL(String unit, QVSessionInfo session, int first, int second)
            throws DiskArrayException;

    /**
     * Returns the virtual volumes.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the virtual volumes
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native VvolInformation QV_GetVVOLInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the integrated LUs.
     *
     * @param unit the unit's registered name
     * @return the integrated LUs
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native IntegrationLUInfo QV_IntegrationLUInfo(String unit) throws DiskArrayException;

    /**
     * Returns the integrated LUs, in the second form.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the integrated LUs
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native IntegrationLUInfo2 QV_IntegrationLUInfo2(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Carries out an operation on integrated LUs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the operation and its LUs; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where <code>child_lu</code> is too short; the library
     *     was called nevertheless
     */
    public native void QV_SetIntegrationLU(
            String unit, QVSessionInfo session, IntegrationRequest request)
            throws DiskArrayException;

    /**
     * Returns the data-management LUs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the data-management LUs
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native DMLUInformation QV_GetDMLU(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the data-management LUs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param information the data-management LUs; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetDMLU(String unit, QVSessionInfo session, DMLUInformation information)
            throws DiskArrayException;

    /**
     * Returns the guard of each LU.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the guard of each LU
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native LuGuardInformation QV_GetLuGuardInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the access level of an LU.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the LU and its new access level; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetLuAccessLevel(
            String unit, QVSessionInfo session, LuAccessLevelRequest request)
            throws DiskArrayException;

    /**
     * Sets the S-VOL disable mode of an LU.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param first the library's own value
     * @param second the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetSvolDisableMode(
            String unit, QVSessionInfo session, int first, int second) throws DiskArrayException;

    /**
     * Extends the retention term of an LU.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param first the library's own value
     * @param second the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ExtendRetentionTerm(
            String unit, QVSessionInfo session, int first, int second) throws DiskArrayException;

    /**
     * Sets the expiration lock.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param value the lock, the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetExpirationLock(String unit, QVSessionInfo session, int value)
            throws DiskArrayException;

    /**
     * Returns the Turbo LU parameters.
     *
     * @param unit the unit's registered name; null is an empty one
     * @param session the session from a login
     * @return the parameters
     * @throws DiskArrayException with the library's code; 2817 where the result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native TurboLu QV_GetTurboLU(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the Turbo LU parameters.
     *
     * <p>Layout assumed: 44 bytes have no field, and reach the library as they lay in memory.
     * Confirm the layout before the first call on an array in use.
     *
     * @param unit the unit's registered name; null is an empty one
     * @param session the session from a login
     * @param turbo the parameters, of which nothing is read; may be null
     * @throws DiskArrayException with the library's code
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetTurboLU(String unit, QVSessionInfo session, TurboLu turbo)
            throws DiskArrayException;

    // Host groups and LU mapping

    /**
     * Returns all host groups.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the host groups
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native HGList QV_GetHGList(String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Creates a host group under <code>hostGroup.hgname</code>, at most 32 bytes.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @param group the number of the new host group, 0 to 127
     * @param hostGroup the host group, of which the name is read; neither may be null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_CreateHG(
            String unit, QVSessionInfo session, int controller, int port, int group,
            HGInfo hostGroup)
            throws DiskArrayException;

    /**
     * Renames a host group to <code>hostGroup.hgname</code>, at most 32 bytes.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @param group the host group of the port, 0 to 127
     * @param hostGroup the host group, of which the name is read; neither may be null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ChangeHG(
            String unit, QVSessionInfo session, int controller, int port, int group,
            HGInfo hostGroup)
            throws DiskArrayException;

    /**
     * Deletes host groups of all ports.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param list the host groups; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where a <code>hg</code> is too short; the library was
     *     called nevertheless
     */
    public native void QV_DeleteHGList(String unit, QVSessionInfo session, DeleteHGList list)
            throws DiskArrayException;

    /**
     * Initialises host groups of all ports.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param list the host groups; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where a <code>hg</code> is too short; the library was
     *     called nevertheless
     */
    public native void QV_InitHGList(String unit, QVSessionInfo session, InitHGList list)
            throws DiskArrayException;

    /**
     * Deletes host groups of one port.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @param list the host groups; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where <code>hg</code> is too short; the library was
     *     called nevertheless
     */
    public native void QV_DeleteHGPortList(
            String unit, QVSessionInfo session, int controller, int port, DeleteHGPortList list)
            throws DiskArrayException;

    /**
     * Initialises host groups of one port.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @param list the host groups; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where <code>hg</code> is too short; the library was
     *     called nevertheless
     */
    public native void QV_InitHGPortList(
            String unit, QVSessionInfo session, int controller, int port, InitHGPortList list)
            throws DiskArrayException;

    /**
     * Returns the mapping of all ports.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the mapping, some 34 MB of it
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native LuMapping QV_GetLuMappingListAll(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the mapping of all ports in its compact form, which has every field of the full one.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the mapping, some 34 MB of it
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native LuMapping QV_GetLuMappingListAllLite(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the mapping of all ports.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param mapping the mapping; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where a <code>lu</code> is too short; the library was
     *     called nevertheless
     */
    public native void QV_SetLuMappingListAll(String unit, QVSessionInfo session, LuMapping mapping)
            throws DiskArrayException;

    /**
     * Sets the mapping of one host group.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @param group the host group or target of the port, 0 to 254
     * @param mapping what is mapped to it; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where <code>lu</code> is too short; the library was
     *     called nevertheless
     */
    public native void QV_SetLuMappingList(
            String unit, QVSessionInfo session, int controller, int port, int group,
            LuMappingHGInfo mapping)
            throws DiskArrayException;

    /**
     * Returns the mapping of one port.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @return the mapping of the port
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native LuMappingPortList QV_GetLuMappingPortList(
            String unit, QVSessionInfo session, int controller, int port) throws DiskArrayException;

    /**
     * Sets the mapping of one port.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @param mapping the mapping of the port; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where a <code>lu</code> is too short; the library was
     *     called nevertheless
     */
    public native void QV_SetLuMappingPortList(
            String unit, QVSessionInfo session, int controller, int port, LuMappingPortList mapping)
            throws DiskArrayException;

    /**
     * Returns an <code>Integer</code>, the mapping mode, and the {@link LuMappingHGInfo} of one
     * host group.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @param group the host group or target of the port, 0 to 254
     * @return 2 elements: the <code>Integer</code>, then the {@link LuMappingHGInfo}
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native Object[] QV_GetLuMappingList(
            String unit, QVSessionInfo session, int controller, int port, int group)
            throws DiskArrayException;

    /**
     * Returns the ports through which each LU is mapped.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the controllers asked of; not null
     * @return the ports of each LU
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native LuMappingPortAssignInfo QV_GetLuMappingPortAssignInfo(
            String unit, QVSessionInfo session, ControllerRequest request)
            throws DiskArrayException;

    /**
     * Changes the mapping mode.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param mode the mapping mode, the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ChangeMappingMode(String unit, QVSessionInfo session, int mode)
            throws DiskArrayException;

    /**
     * Returns the mapping guard of every LU.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the guard, a byte for each LU
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native MappingGuardList QV_GetMappingGuardList(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the mapping guard of every LU.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param guard the guard, a byte for each LU; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where <code>lumap_guard</code> is too short; the
     *     library was called nevertheless
     */
    public native void QV_SetMappingGuardList(
            String unit, QVSessionInfo session, MappingGuardList guard) throws DiskArrayException;

    /**
     * Returns the options of all host groups.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the options
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native HGOption QV_GetHGOptionAll(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the options of all host groups.
     *
     * <p>Layout assumed: 16,480 bytes have no field, and reach the library as they lay in memory.
     * Confirm the layout before the first call on an array in use.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param options the options; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetHGOptionAll(String unit, QVSessionInfo session, HGOption options)
            throws DiskArrayException;

    /**
     * Returns the options of one host group.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @param group the host group of the port, 0 to 254
     * @return the options
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native HGOptionInfo QV_GetHGOption(
            String unit, QVSessionInfo session, int controller, int port, int group)
            throws DiskArrayException;

    /**
     * Sets the options of one host group.
     *
     * <p>Layout assumed: 4 bytes have no field, and reach the library as they lay in memory.
     * Confirm the layout before the first call on an array in use.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @param group the host group of the port, 0 to 254
     * @param option the options; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetHGOption(
            String unit, QVSessionInfo session, int controller, int port, int group,
            HGOptionInfo option)
            throws DiskArrayException;

    /**
     * Returns the options of all ports.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the options
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native PortOption QV_GetPortOption(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the options of all ports.
     *
     * <p>Layout assumed: 16 bytes have no field, and reach the library as they lay in memory.
     * Confirm the layout before the first call on an array in use.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param options the options; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where a <code>lip_mode</code> or
     *     <code>port_common_opt</code> is too short; the library was called nevertheless
     */
    public native void QV_SetPortOption(String unit, QVSessionInfo session, PortOption options)
            throws DiskArrayException;

    /**
     * Returns the host group parameters that there are to choose from.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the parameters
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native HGParameterList QV_GetHGParameterList(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the host group parameters in their second form.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the parameters
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native HGParameterList2 QV_GetHGParameterList2(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the identifiers of the host group parameters.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @return the identifiers
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native HGParameterID QV_GetHGParameterID(
            String unit, QVSessionInfo session, int controller) throws DiskArrayException;

    /**
     * Returns the hosts known at the ports.
     *
     * @param unit the unit's registered name
     * @return the hosts
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native WWNInformation QV_GetWWNInformation(String unit) throws DiskArrayException;

    /**
     * Sets the hosts known at the ports.
     *
     * <p>Layout assumed: 297,056 bytes have no field, and reach the library as they lay in memory.
     * Confirm the layout before the first call on an array in use.
     *
     * @param unit the unit's registered name
     * @param information the hosts; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetWWNInformation(String unit, WWNInformation information)
            throws DiskArrayException;

    /**
     * Returns the hosts of the host groups.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the hosts
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native WWNHGInformation QV_GetWWNHGInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the hosts of the host groups.
     *
     * <p>Layout assumed: 155,776 bytes have no field, and reach the library as they lay in memory.
     * Confirm the layout before the first call on an array in use.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param information the hosts; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetWWNHGInformation(
            String unit, QVSessionInfo session, WWNHGInformation information)
            throws DiskArrayException;

    /**
     * Returns the two target IDs of a controller.
     *
     * @param unit the unit's registered name
     * @param controller the controller, 0 or 1
     * @return the target IDs, 2 elements
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native TargetId[] QV_GetTargetId(String unit, int controller) throws DiskArrayException;

    /**
     * Sets a target ID of a controller.
     *
     * <p>Layout assumed: 8,192 bytes have no field, and reach the library as they lay in memory.
     * Confirm the layout before the first call on an array in use.
     *
     * @param unit the unit's registered name
     * @param controller the controller, 0 or 1
     * @param id the target ID; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where <code>multi</code> is too short; the library was
     *     called nevertheless
     */
    public native void QV_SetTargetId(String unit, int controller, TargetId id)
            throws DiskArrayException;

    /**
     * Returns the target IDs that a file holds.
     *
     * @param unit the unit's registered name
     * @param file path of the file, at most 1,023 bytes
     * @return the target IDs, 2 elements
     * @throws DiskArrayException with the library's code; 258 where unit or file is null; 2817
     *     where the result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native TargetId[] QV_TargetIdImport(String unit, String file) throws DiskArrayException;

    /**
     * Returns the target IDs that two files hold, in the WZ form.
     *
     * @param unit the unit's registered name
     * @param first path of the first file, at most 1,023 bytes
     * @param second path of the second file, at most 1,023 bytes
     * @return the target IDs, 2 elements
     * @throws DiskArrayException with the library's code; 258 where unit, first or second is null;
     *     2817 where the result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native WZTargetId[] QV_WZTargetIdImport(String unit, String first, String second)
            throws DiskArrayException;

    // iSCSI targets and ports

    /**
     * Returns the addresses of the iSCSI ports.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the ports
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QViSCSIPortInformation QV_GetiSCSIPortInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Sets the addresses of the iSCSI ports.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param ports the ports; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetiSCSIPortInformation(
            String unit, QVSessionInfo session, QViSCSIPortInformation ports)
            throws DiskArrayException;

    /**
     * Returns the iSCSI targets of all ports.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the targets
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QViSCSITargetInformationAll QV_GetiSCSITargetInformationAll(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Creates an iSCSI target.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @param number the number of the new target, 0 to 254
     * @param target the target; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_CreateiSCSITarget(
            String unit, QVSessionInfo session, int controller, int port, int number,
            QViSCSITargetInfo target) throws DiskArrayException;

    /**
     * Changes an iSCSI target.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @param number the target of the port, 0 to 254
     * @param target the target as it is to be; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ChangeiSCSITarget(
            String unit, QVSessionInfo session, int controller, int port, int number,
            QViSCSITargetInfo target) throws DiskArrayException;

    /**
     * Deletes iSCSI targets of a port.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @param targets the targets; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where <code>target</code> is too short; the library
     *     was called nevertheless
     */
    public native void QV_DeleteiSCSITarget(
            String unit, QVSessionInfo session, int controller, int port, DeleteTargetList targets)
            throws DiskArrayException;

    /**
     * Initialises all iSCSI targets of a port.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_InitiSCSITarget(
            String unit, QVSessionInfo session, int controller, int port) throws DiskArrayException;

    /**
     * Changes the security of the iSCSI targets of a port.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @param security the security, the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ChangeiSCSITargetSecurity(
            String unit, QVSessionInfo session, int controller, int port, int security)
            throws DiskArrayException;

    /**
     * Returns the registered iSCSI initiators of all ports.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the initiators
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QViSCSIInitiatorInformationAll QV_GetiSCSIInitiatorInformationAll(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Returns the registered iSCSI initiators of a port.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @return the initiators
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QViSCSIInitiatorPortInformation QV_GetiSCSIInitiatorInformation(
            String unit, QVSessionInfo session, int controller, int port) throws DiskArrayException;

    /**
     * Sets the registered iSCSI initiators of a port; the name is spelled as in the library.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @param initiators the initiators; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where a <code>target_bitmap</code> is too short; the
     *     library was called nevertheless
     */
    public native void QV_SetiSCSIInitiatortInformation(
            String unit, QVSessionInfo session, int controller, int port,
            QViSCSIInitiatorPortInfo initiators) throws DiskArrayException;

    /**
     * Returns the iSCSI initiators that are logged in.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the initiators
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QViSCSILoginInitiatorInformationAll QV_GetiSCSILoginInitiatorInformationAll(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Returns the CHAP users of all ports.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the CHAP users
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QViSCSICHAPUserInformationAll QV_GetiSCSICHAPUserInformationAll(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Returns the CHAP users of a port.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @return the CHAP users
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QViSCSICHAPUserPortInformation QV_GetiSCSICHAPUserInformation(
            String unit, QVSessionInfo session, int controller, int port) throws DiskArrayException;

    /**
     * Sets the CHAP users of a port.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port of the controller, 0 to 7
     * @param users the CHAP users; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where a <code>target_bitmap</code> is too short; the
     *     library was called nevertheless
     */
    public native void QV_SetiSCSICHAPUserInformation(
            String unit, QVSessionInfo session, int controller, int port,
            QViSCSICHAPUserPortInfo users) throws DiskArrayException;

    /**
     * Imports CHAP users from a file.
     *
     * @param unit the unit's registered name
     * @param path path of the file, at most 1,023 bytes
     * @param session the session from a login
     * @throws DiskArrayException with the library's code; 258 where unit or path is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_iSCSICHAPUserImport(String unit, String path, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the iSNS servers of the iSCSI ports.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the servers
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QViSNSInformation QV_GetiSNSInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the iSNS servers of the iSCSI ports.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param servers the servers; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetiSNSInformation(
            String unit, QVSessionInfo session, QViSNSInformation servers)
            throws DiskArrayException;

    /**
     * Starts pings from iSCSI ports.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the ports and what they ping; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_RequestiSCSIPing(String unit, QVSessionInfo session, QViSCSIPing request)
            throws DiskArrayException;

    /**
     * Returns how far the pings came.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the pings
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QViSCSIPing QV_GetiSCSIPingStatus(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the iSCSI paths to other arrays.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the paths
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QViSCSIRemotePathInfo QV_GetiSCSIRemotePath(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the iSCSI paths to another array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param path the paths; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetiSCSIRemotePath(
            String unit, QVSessionInfo session, QViSCSIRemotePath path) throws DiskArrayException;

    /**
     * Deletes the iSCSI paths to another array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param path the paths; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_DeliSCSIRemotePath(
            String unit, QVSessionInfo session, QViSCSIRemotePath path) throws DiskArrayException;

    // Fibre ports and LAN settings

    /**
     * Returns the LAN address of a controller.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @return its LAN address
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native LANInformation QV_GetLANInformation(
            String unit, QVSessionInfo session, int controller) throws DiskArrayException;

    /**
     * Sets the LAN address of a controller.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param port the port, the library's own number
     * @param information the LAN address; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetLANInformation(
            String unit, QVSessionInfo session, int controller, int port,
            LANInformation information) throws DiskArrayException;

    /**
     * Returns the LAN addresses and links of both controllers.
     *
     * @param unit the unit's registered name
     * @return the LAN addresses and links
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native LANInformationEx QV_GetLANInformationEx(String unit) throws DiskArrayException;

    /**
     * Sets the LAN addresses and links of both controllers.
     *
     * @param unit the unit's registered name
     * @param information the LAN addresses and links; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetLANInformationEx(String unit, LANInformationEx information)
            throws DiskArrayException;

    /**
     * Returns the management port numbers.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the port numbers
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native LANPortNumber QV_GetLANPortNumber(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the management port numbers.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param controller the controller, 0 or 1
     * @param numbers the port numbers; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetLANPortNumber(
            String unit, QVSessionInfo session, int controller, LANPortNumber numbers)
            throws DiskArrayException;

    /**
     * Returns the user LAN.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the user LAN
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QVUserLANInformation QV_GetQVUserLANInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Sets the user LAN.
     *
     * <p>Layout assumed: 184 bytes have no field, and reach the library as they lay in memory.
     * Confirm the layout before the first call on an array in use.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param information the user LAN; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetQVUserLANInformation(
            String unit, QVSessionInfo session, QVUserLANInformation information)
            throws DiskArrayException;

    /**
     * Reads the user LAN from a file.
     *
     * @param unit the unit's registered name
     * @param path path of the file, at most 1,023 bytes
     * @param session the session from a login
     * @return the user LAN that the file holds
     * @throws DiskArrayException with the library's code; 258 where unit or path is null; 2817
     *     where the result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QVUserLANInformation QV_LoadQVUserLANInformation(
            String unit, String path, QVSessionInfo session) throws DiskArrayException;

    /**
     * Writes the LAN settings to a file.
     *
     * <p>Layout assumed: 8 bytes have no field, and reach the library as they lay in memory.
     * Confirm the layout before the first call on an array in use.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param file the file; neither it nor its name may be null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_LANExport(String unit, QVSessionInfo session, LANFile file)
            throws DiskArrayException;

    /**
     * Sets the LAN from a file.
     *
     * <p>Layout assumed: 8 bytes have no field, and reach the library as they lay in memory.
     * Confirm the layout before the first call on an array in use.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param file the file; neither it nor its name may be null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_LANImport(String unit, QVSessionInfo session, LANFile file)
            throws DiskArrayException;

    /**
     * Returns the maintenance LAN.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the maintenance LAN
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native MainteLanInfo QV_GetMainteLanInfo(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the address of the maintenance LAN.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param address the address; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetMainteIPAddress(
            String unit, QVSessionInfo session, MainteIPAddress address) throws DiskArrayException;

    /**
     * Returns the addresses that the maintenance LAN may be given.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the addresses
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native MainteLanAvailableList QV_GetMainteLanAvailableList(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Returns the LAN of the network node controllers.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the LAN of the network node controllers
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native NNCLANInformation QV_GetNNCLANInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the LAN of the network node controllers.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param information the LAN of the network node controllers; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetNNCLANInformation(
            String unit, QVSessionInfo session, NNCLANInformation information)
            throws DiskArrayException;

    /**
     * Returns the Fibre Channel ports: 2 elements, one for each controller.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the ports of each controller, 2 elements
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native FibreInformation[] QV_GetFibreInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the Fibre Channel ports of both controllers.
     *
     * <p>Layout assumed: 80 bytes have no field, and reach the library as they lay in memory.
     * Confirm the layout before the first call on an array in use.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param first the ports of controller 0; not null
     * @param second the ports of controller 1; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     * @throws ArrayIndexOutOfBoundsException where a <code>topology</code>,
     *     <code>topology_ref</code> or <code>lun_security_bitmap</code> is too short; the library
     *     was called nevertheless
     */
    public native void QV_SetFibreInformation(
            String unit, QVSessionInfo session, FibreInformation first,
            FibreInformation second) throws DiskArrayException;

    /**
     * Reads the permitted hosts of a Fibre Channel port from a file.
     *
     * @param unit the unit's registered name; null is an empty one
     * @param path path of the file, at most 1,023 bytes; null is an empty one
     * @param port the port, the library's own number
     * @return the hosts, 128 elements
     * @throws DiskArrayException with the library's code; 2817 where the result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native FibreInformationPermission[] QV_FibreInfoPermissionImport(
            String unit, String path, int port) throws DiskArrayException;

    // Copy pairs

    /**
     * Creates a Gemlyn pair.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pair to create; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_CreateGemlynPair(
            String unit, QVSessionInfo session, CreateGemlynPair request) throws DiskArrayException;

    /**
     * Splits Gemlyn pairs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pairs to split; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SplitGemlynPair(String unit, QVSessionInfo session, SplitGemlynPair request)
            throws DiskArrayException;

    /**
     * Carries out the operation that is called simple on Gemlyn pairs; over the simulator it
     * dissolves them.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pairs; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SimpleGemlynPair(String unit, QVSessionInfo session, PairOperation request)
            throws DiskArrayException;

    /**
     * Resynchronises Gemlyn pairs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pairs to resynchronise; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ResyncGemlynPair(String unit, QVSessionInfo session, PairOperation request)
            throws DiskArrayException;

    /**
     * Restores Gemlyn pairs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pairs to restore; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_RestoreGemlynPair(String unit, QVSessionInfo session, PairOperation request)
            throws DiskArrayException;

    /**
     * Creates a SnapShot pair.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pair to create; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_CreateSnapShotPair(
            String unit, QVSessionInfo session, CreateSnapShotPair request) throws DiskArrayException;

    /**
     * Splits SnapShot pairs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pairs to split; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SplitSnapShotPair(
            String unit, QVSessionInfo session, SplitSnapShotPair request) throws DiskArrayException;

    /**
     * Carries out the operation that is called simple on SnapShot pairs; over the simulator it
     * dissolves them.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pairs; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SimpleSnapShotPair(String unit, QVSessionInfo session, PairOperation request)
            throws DiskArrayException;

    /**
     * Resynchronises SnapShot pairs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pairs to resynchronise; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ResyncSnapShotPair(String unit, QVSessionInfo session, PairOperation request)
            throws DiskArrayException;

    /**
     * Restores SnapShot pairs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pairs to restore; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_RestoreSnapShotPair(
            String unit, QVSessionInfo session, PairOperation request) throws DiskArrayException;

    /**
     * Creates a Farlink pair.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pair to create; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_CreateFarlinkPair(
            String unit, QVSessionInfo session, CreateFarlinkPair request) throws DiskArrayException;

    /**
     * Splits Farlink pairs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pairs to split; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SplitFarlinkPair(
            String unit, QVSessionInfo session, SplitFarlinkPair request) throws DiskArrayException;

    /**
     * Carries out the operation that is called simple on Farlink pairs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pairs; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SimpleFarlinkPair(
            String unit, QVSessionInfo session, SimpleRemotePair request) throws DiskArrayException;

    /**
     * Resynchronises Farlink pairs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pairs to resynchronise; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ResyncFarlinkPair(
            String unit, QVSessionInfo session, RemotePairOperation request) throws DiskArrayException;

    /**
     * Swaps Farlink pairs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pairs to swap; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SwapFarlinkPair(
            String unit, QVSessionInfo session, RemotePairOperation request) throws DiskArrayException;

    /**
     * Creates a Longlink pair.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pair to create; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_CreateLonglinkPair(
            String unit, QVSessionInfo session, CreateLonglinkPair request) throws DiskArrayException;

    /**
     * Splits Longlink pairs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pairs to split; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SplitLonglinkPair(
            String unit, QVSessionInfo session, SplitLonglinkPair request) throws DiskArrayException;

    /**
     * Carries out the operation that is called simple on Longlink pairs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pairs; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SimpleLonglinkPair(
            String unit, QVSessionInfo session, SimpleRemotePair request) throws DiskArrayException;

    /**
     * Resynchronises Longlink pairs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pairs to resynchronise; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ResyncLonglinkPair(
            String unit, QVSessionInfo session, RemotePairOperation request) throws DiskArrayException;

    /**
     * Swaps Longlink pairs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the pairs to swap; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SwapLonglinkPair(
            String unit, QVSessionInfo session, RemotePairOperation request) throws DiskArrayException;

    /**
     * Changes the attributes of a pair.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param change the pair, and its new attributes; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ChangeReplicationPair(
            String unit, QVSessionInfo session, PairChange change) throws DiskArrayException;

    /**
     * Changes the pace of migrations of logical units.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the migrations, and the new pace of each; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ChangeCopyPace(
            String unit, QVSessionInfo session, LuMigrationRequest request)
            throws DiskArrayException;

    /**
     * Returns the pairs inside the array, with all their fields. That makes an object for each of
     * 4,094 logical units and 32 pairs of each, used or not: who lists or watches pairs takes
     * {@link #QV_GetPairInformationSimple} or {@link #QV_GetPairInformationLite}.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the pairs inside the array
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native PairInfo QV_GetPairInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the pairs inside the array with their state and names, the light form. It fills: of
     * {@link PairInfo} <code>option</code>, <code>pair_count</code> and <code>lu</code>; of {@link
     * PairLUInfo} <code>lun</code>, <code>pool_usedrate</code>, <code>mirror_count</code> and
     * <code>m_info</code>; of {@link MirrorLUInfo} <code>mirror_no</code>, <code>lun</code>,
     * <code>pool_no</code>, <code>pair_status</code>, <code>pair_status_detail</code>,
     * <code>ctg_valid</code>, <code>ctg_no</code>, <code>ctg_name</code>, <code>pair_name</code>,
     * <code>copy_speed</code>, <code>synchronized_rate</code>, <code>split_time</code> and
     * <code>add_message</code>. All others are 0 or null.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the pairs inside the array; <code>ctl</code> and <code>sys</code> are null
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native PairInfo QV_GetPairInformationLite(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the pairs inside the array with their capacities, of the first 2,046 of the 4,094
     * logical units, the second light form. It fills: of {@link PairInfo} <code>option</code>,
     * <code>ctl</code>, <code>pair_count</code> and <code>lu</code>; of {@link PairLUInfo}
     * <code>lun</code>, <code>capacity</code>, <code>pool_usedcapa_h</code>,
     * <code>pool_usedcapa_l</code>, <code>pool_usedrate</code>, <code>mirror_count</code> and
     * <code>m_info</code>; of {@link MirrorLUInfo} <code>mirror_no</code>, <code>lun</code>,
     * <code>ctl_no</code>, <code>pool_no</code>, <code>pair_status</code>, <code>usedcapa</code>,
     * <code>changed_rate</code> and <code>time</code>. All others are 0 or null.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the pairs inside the array; <code>sys</code> is null
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native PairInfo QV_GetPairInformationLite2(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns which logical units are paired inside the array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the numbers of the paired logical units
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native PairInfoSimple QV_GetPairInformationSimple(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the Farlink pairs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the Farlink pairs
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native FarlinkPairInformation QV_GetFarlinkPairInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Returns the asynchronous Farlink pairs and their consistency groups.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the asynchronous Farlink pairs and their groups
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native FarlinkAsyncPairInformation QV_GetFarlinkAsyncPairInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Returns the settings of asynchronous Farlink pairs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the settings
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native FarlinkAsyncOption QV_GetFarlinkAsyncOption(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the settings of asynchronous Farlink pairs.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option the settings; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetFarlinkAsyncOption(
            String unit, QVSessionInfo session, FarlinkAsyncOption option)
            throws DiskArrayException;

    /**
     * Returns the Zencopy pairs. It needs no session.
     *
     * @param unit the unit's registered name
     * @return the Zencopy pairs
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ZencopyInformation QV_GetZencopyInformation(String unit)
            throws DiskArrayException;

    /**
     * Splits a Zencopy pair. It needs no session.
     *
     * @param unit the unit's registered name
     * @param pair which pair, the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native void QV_SplitZencopyPair(String unit, int pair) throws DiskArrayException;

    // Remote paths and consistency groups

    /**
     * Returns the consistency groups, 256 of pairs inside the array and 256 of remote pairs, used
     * or not.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the consistency groups
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native CTGInformation QV_GetCTGInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Changes the attributes of a consistency group.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param change the group, and its new attributes; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ChangeReplicationCTG(String unit, QVSessionInfo session, CTGInfo change)
            throws DiskArrayException;

    /**
     * Returns the remote array that this one knows.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the remote array
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native RemoteDeviceInformation QV_GetRemoteDeviceInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Sets the remote array that this one knows.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param device the remote array; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetRemoteDeviceInformation(
            String unit, QVSessionInfo session, RemoteDeviceInformation device)
            throws DiskArrayException;

    /**
     * Returns the remote arrays that this one knows.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return 8 remote arrays, used or not
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native RemoteDeviceInformationEx QV_GetRemoteDeviceInformationEx(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Sets the remote arrays that this one knows.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param devices 8 remote arrays; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetRemoteDeviceInformationEx(
            String unit, QVSessionInfo session, RemoteDeviceInformationEx devices)
            throws DiskArrayException;

    /**
     * Deletes the remote paths to other arrays.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param deletion the other arrays, 8 at most; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_DelRemotePath(
            String unit, QVSessionInfo session, RemotePathDeletion deletion)
            throws DiskArrayException;

    /**
     * Rebuilds a remote path.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param rebuild the path; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ReconstructRemotePath(
            String unit, QVSessionInfo session, RemotePathRebuild rebuild)
            throws DiskArrayException;

    /**
     * Returns the remote-verify source paths.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the paths
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native RvrfSrcInfo QV_GetRvrfSrcPath(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the remote-verify source paths to another array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param paths the other array and the paths to it; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetRvrfSrcPath(String unit, QVSessionInfo session, RvrfSrcArrayUnit paths)
            throws DiskArrayException;

    /**
     * Deletes the remote-verify source paths.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_DelRvrfSrcPath(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the command devices.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the command devices
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native CommandDevice QV_GetCommandDevice(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the command devices.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param device the command devices, as {@link #QV_GetCommandDevice} returns them; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws ArrayIndexOutOfBoundsException where an int array of device is too short; the library
     *     was called nevertheless
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetCommandDevice(String unit, QVSessionInfo session, CommandDevice device)
            throws DiskArrayException;

    /**
     * Returns the pairs as couplings of logical units.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return 8,192 couplings, used or not
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native CouplingInfo QV_GetCouplingInfo(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the synchronisation of the ports of a controller. It needs no session.
     *
     * @param unit the unit's registered name
     * @param controller the controller, the library's own value
     * @return the synchronisation of 4 ports
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native SyncControl QV_GetSyncControl(String unit, int controller)
            throws DiskArrayException;

    /**
     * Sets the synchronisation of the ports of a controller. It needs no session.
     *
     * @param unit the unit's registered name
     * @param controller the controller, the library's own value
     * @param control the synchronisation of 4 ports; not null
     * @param option the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetSyncControl(
            String unit, int controller, SyncControl control, int option) throws DiskArrayException;

    // Volume migration

    /**
     * Reserves logical units as targets of migrations.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param reserve the logical units to reserve; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws ArrayIndexOutOfBoundsException where the array of reserve is too short; the library
     *     was called nevertheless
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_AddLuMigrationReserveLU(
            String unit, QVSessionInfo session, LuMigrationReserve reserve)
            throws DiskArrayException;

    /**
     * Takes back the reservation of logical units.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param reserve the logical units to release; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws ArrayIndexOutOfBoundsException where the array of reserve is too short; the library
     *     was called nevertheless
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_DeleteLuMigrationReserveLU(
            String unit, QVSessionInfo session, LuMigrationReserve reserve)
            throws DiskArrayException;

    /**
     * Starts to migrate logical units to reserved ones.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the migrations to start; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_StartLuMigration(
            String unit, QVSessionInfo session, LuMigrationRequest request)
            throws DiskArrayException;

    /**
     * Cancels migrations.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the migrations to cancel; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_CancelLuMigration(
            String unit, QVSessionInfo session, LuMigrationRequest request)
            throws DiskArrayException;

    /**
     * Splits the pairs of migrations.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the migrations to split; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SplitLuMigration(
            String unit, QVSessionInfo session, LuMigrationRequest request)
            throws DiskArrayException;

    /**
     * Splits the pairs of migrations and releases their owner.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the migrations to split; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SplitLuMigrationFreeOwner(
            String unit, QVSessionInfo session, LuMigrationRequest request)
            throws DiskArrayException;

    /**
     * Returns the migration's state of each logical unit.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return 8,192 states, one for each logical unit
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native LuMigrationState QV_GetLuMigrationState(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the reserved logical units and the migrations with their progress.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return 4,095 reserved logical units and 4,095 migrations, used or not
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native LuMigrationInformation QV_GetLuMigrationInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Returns the state of the migration of the whole array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the state and the progress
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native AutoMigrationInformation QV_GetAutoMigrationInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Starts to migrate the whole array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param pace how fast to copy; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_StartAutoMigration(
            String unit, QVSessionInfo session, AutoMigrationPace pace) throws DiskArrayException;

    /**
     * Changes the pace of the migration of the whole array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param pace how fast to copy from now on; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ChangeAutoMigrationCopyPace(
            String unit, QVSessionInfo session, AutoMigrationPace pace) throws DiskArrayException;

    /**
     * Changes the networks of the array and of the new one.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param path the networks of both arrays; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ChangeAutoMigrationAccessPath(
            String unit, QVSessionInfo session, AutoMigrationAccessPath path)
            throws DiskArrayException;

    /**
     * Deletes the data of the migration of the whole array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_DeleteAutoMigrationData(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Resets the usable status of the migration of the whole array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ResetAutoMigrationUsableStatus(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Restarts the unit in the migration of the whole array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_RebootAutoMigrationUnit(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Shuts down the unit in the migration of the whole array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ShutdownAutoMigrationUnit(String unit, QVSessionInfo session)
            throws DiskArrayException;

    // Firmware download and replacement

    /**
     * Stages a firmware file.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param path path of the file, at most 1,023 bytes
     * @param option the library's own value
     * @return the int that the library writes, its own value
     * @throws DiskArrayException with the library's code; 258 where unit or path is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native int QV_MicroFileConcat(
            String unit, QVSessionInfo session, String path, int option) throws DiskArrayException;

    /**
     * Stages a firmware file, in the second form.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param path path of the file, at most 1,023 bytes
     * @throws DiskArrayException with the library's code; 258 where unit or path is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_MicroFileConcat2(String unit, QVSessionInfo session, String path)
            throws DiskArrayException;

    /**
     * Stages a firmware file, in the extended form.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param path path of the file, at most 1,023 bytes
     * @throws DiskArrayException with the library's code; 258 where unit or path is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_MicroFileConcatEx(String unit, QVSessionInfo session, String path)
            throws DiskArrayException;

    /**
     * Stages a firmware of two files.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param first path of the first file, at most 1,023 bytes
     * @param second path of the second file, at most 1,023 bytes
     * @throws DiskArrayException with the library's code; 258 where unit, first or second is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_MicroFileConcatEx2(
            String unit, QVSessionInfo session, String first, String second)
            throws DiskArrayException;

    /**
     * Gives up what is staged of the array's firmware.
     *
     * @throws DiskArrayException with the library's code
     */
    public native void QV_CancelMicroFileConcat() throws DiskArrayException;

    /**
     * Gives up a staged firmware file.
     *
     * @param path path of the file, at most 1,023 bytes
     * @throws DiskArrayException with the library's code; 258 where path is null
     */
    public native void QV_CancelMicroFileConcat2(String path) throws DiskArrayException;

    /**
     * Returns how far the download came.
     *
     * @param unit the unit's registered name
     * @return the library's own count
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native int QV_GetMicroDownloadCount(String unit) throws DiskArrayException;

    /**
     * Returns how far the download came, in the extended form.
     *
     * @param unit the unit's registered name
     * @param option the library's own value
     * @return the library's own count
     * @throws DiskArrayException with the library's code; 258 where unit is null
     */
    public native int QV_GetMicroDownloadCountEx(String unit, int option) throws DiskArrayException;

    /**
     * Returns how far the download of a file came.
     *
     * @param unit the unit's registered name
     * @param option the library's own value
     * @param path path of the file, at most 1,023 bytes
     * @return the library's own count
     * @throws DiskArrayException with the library's code; 258 where unit or path is null
     */
    public native int QV_GetMicroDownloadCountEx2(String unit, int option, String path)
            throws DiskArrayException;

    /**
     * Downloads the staged firmware to the array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option1 the library's own value
     * @param option2 the library's own value
     * @param option3 the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_MicroDownload(
            String unit, QVSessionInfo session, int option1, int option2, int option3)
            throws DiskArrayException;

    /**
     * Downloads the staged firmware to the array, in the extended form.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option1 the library's own value
     * @param option2 the library's own value
     * @param option3 the library's own value
     * @param option4 the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_MicroDownloadEx(
            String unit, QVSessionInfo session, int option1, int option2, int option3, int option4)
            throws DiskArrayException;

    /**
     * Downloads a staged firmware file to the array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option1 the library's own value
     * @param option2 the library's own value
     * @param option3 the library's own value
     * @param option4 the library's own value
     * @param path path of the file, at most 1,023 bytes
     * @throws DiskArrayException with the library's code; 258 where unit or path is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_MicroDownloadEx2(
            String unit, QVSessionInfo session, int option1, int option2, int option3,
            int option4, String path) throws DiskArrayException;

    /**
     * Replaces the running firmware by the downloaded one.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_MicroReplace(String unit, QVSessionInfo session, int option)
            throws DiskArrayException;

    /**
     * Replaces the running firmware. The library's code 4109 is a success, too.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option the library's own value
     * @return the replacement's information
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native MicroReplaceInformation QV_MicroReplaceEx(
            String unit, QVSessionInfo session, int option) throws DiskArrayException;

    /**
     * Replaces the running firmware by a cross-call.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the controller and how; not null
     * @return the replacement's information
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native MicroReplaceInformation QV_MicroReplaceCrosscall(
            String unit, QVSessionInfo session, MicroReplaceCrosscallRequest request)
            throws DiskArrayException;

    /**
     * Completes a replacement.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_CompleteMicroReplace(String unit, QVSessionInfo session, int option)
            throws DiskArrayException;

    /**
     * Returns what is staged of the array's firmware.
     *
     * @return what is staged
     * @throws DiskArrayException with the library's code; 2817 where the result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native MicroFileInformation QV_GetMicroFileInformation() throws DiskArrayException;

    /**
     * Returns the revision of the staged firmware.
     *
     * @return the revision, at most 64 bytes
     * @throws DiskArrayException with the library's code; 2817 where the result could not be built
     */
    public native String QV_GetNewMicroRevision() throws DiskArrayException;

    /**
     * Returns the revision of a firmware file.
     *
     * @param path path of the file, at most 1,023 bytes
     * @return the revision, at most 64 bytes
     * @throws DiskArrayException with the library's code; 258 where path is null; 2817 where the
     *     result could not be built
     */
    public native String QV_GetNewMicroRevision2(String path) throws DiskArrayException;

    /**
     * Stages an enclosure firmware file.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param path path of the file, at most 1,023 bytes
     * @throws DiskArrayException with the library's code; 258 where unit or path is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ENCMicroFileConcat(String unit, QVSessionInfo session, String path)
            throws DiskArrayException;

    /**
     * Stages an enclosure firmware file, in the extended form.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param path path of the file, at most 1,023 bytes
     * @param option the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit or path is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ENCMicroFileConcatEx(
            String unit, QVSessionInfo session, String path, int option) throws DiskArrayException;

    /**
     * Gives up what is staged of the enclosure firmware.
     *
     * @throws DiskArrayException with the library's code
     */
    public native void QV_CancelENCMicroFileConcat() throws DiskArrayException;

    /**
     * Downloads the staged enclosure firmware.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option1 the library's own value
     * @param option2 the library's own value
     * @return the int that the library writes, its own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native int QV_ENCMicroDownload(
            String unit, QVSessionInfo session, int option1, int option2) throws DiskArrayException;

    /**
     * Returns how far the download of the enclosure firmware came.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the library's own count
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native int QV_GetENCMicroDownloadCount(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Replaces the running enclosure firmware by the downloaded one.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ENCMicroReplace(String unit, QVSessionInfo session, int option)
            throws DiskArrayException;

    /**
     * Replaces the running enclosure firmware, in the extended form.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option the library's own value
     * @param record the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ENCMicroReplaceEx(
            String unit, QVSessionInfo session, int option, int record) throws DiskArrayException;

    /**
     * Returns what is staged of the enclosure firmware.
     *
     * @return what is staged
     * @throws DiskArrayException with the library's code; 2817 where the result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ENCMicroInformation QV_GetENCMicroInformation() throws DiskArrayException;

    /**
     * Returns the enclosure firmware of an array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the firmware
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native ENCMicroInformation QV_GetENCMicroInformationEx(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Returns the BIOS revision that the method's name calls local.
     *
     * @return the revision
     * @throws DiskArrayException with the library's code; 2817 where the result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native NNCBiosRevision QV_GetLocalNNCBiosRevision() throws DiskArrayException;

    /**
     * Returns the BIOS revisions of the network node controllers.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the revisions
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native NNCBiosRevisionList QV_GetNNCBiosRevisionList(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Prepares the network node controllers for the download of a BIOS.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_PreparesNNCBiosDownload(String unit, QVSessionInfo session, int option)
            throws DiskArrayException;

    /**
     * Stages a BIOS file.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param path path of the file, at most 1,023 bytes
     * @throws DiskArrayException with the library's code; 258 where unit or path is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_NNCBiosFileConcat(String unit, QVSessionInfo session, String path)
            throws DiskArrayException;

    /**
     * Gives up what is staged of the BIOS.
     *
     * @throws DiskArrayException with the library's code
     */
    public native void QV_CancelNNCBiosFileConcat() throws DiskArrayException;

    /**
     * Downloads the staged BIOS.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option1 the library's own value
     * @param option2 the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_NNCBiosDownload(
            String unit, QVSessionInfo session, int option1, int option2) throws DiskArrayException;

    /**
     * Returns how far the download of the BIOS came.
     *
     * @return the library's own count
     * @throws DiskArrayException with the library's code
     */
    public native int QV_GetNNCBiosDownloadCount() throws DiskArrayException;

    /**
     * Returns the status of the BIOS download of a network node controller.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option the library's own value
     * @return the status
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native NNCBiosDownloadStatus QV_GetNNCBiosDownloadStatus(
            String unit, QVSessionInfo session, int option) throws DiskArrayException;

    /**
     * Returns the upgrade status of the network node controllers.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the status of each
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native NNCUpgradeStatusList QV_GetNNCUpgradeStatusList(
            String unit, QVSessionInfo session) throws DiskArrayException;

    // Account authentication

    /**
     * Logs in with an account of the array.
     *
     * @param unit the unit's registered name
     * @param request the account and its password; not null
     * @return the session, for every other call on this unit
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QVSessionInfo QV_LoginQVAccount(String unit, LoginRequest request)
            throws DiskArrayException;

    /**
     * Logs in for the alert check.
     *
     * @param unit the unit's registered name
     * @param option the library's own value
     * @return the session
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QVSessionInfo QV_LoginQVAccountAlertCheck(String unit, int option)
            throws DiskArrayException;

    /**
     * Ends a session.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option the log option; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_LogoutQVAccount(String unit, QVSessionInfo session, LogoutOption option)
            throws DiskArrayException;

    /**
     * Ends a session of the alert check.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option the log option; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_LogoutQVAccountAlertCheck(
            String unit, QVSessionInfo session, LogoutOption option) throws DiskArrayException;

    /**
     * Logs an account out by force.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param account the account; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ForcedLogoutQVAccount(
            String unit, QVSessionInfo session, AccountIdentifier account)
            throws DiskArrayException;

    /**
     * Deletes an account.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param account the account; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_DeleteAccount(
            String unit, QVSessionInfo session, AccountIdentifier account)
            throws DiskArrayException;

    /**
     * Creates an account.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param account the account; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_CreateAccount(String unit, QVSessionInfo session, Account account)
            throws DiskArrayException;

    /**
     * Changes an account.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param account the account as it is to be; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ChangeAccount(String unit, QVSessionInfo session, Account account)
            throws DiskArrayException;

    /**
     * Changes the password of the session's own user.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param change the user and both passwords; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ChangeOwnUserPassword(
            String unit, QVSessionInfo session, OwnPasswordChange change)
            throws DiskArrayException;

    /**
     * Returns the settings for all accounts.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the settings
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native AccountOption QV_GetAccountOption(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the settings for all accounts.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option the settings; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetAccountOption(
            String unit, QVSessionInfo session, AccountOption option) throws DiskArrayException;

    /**
     * Returns the roles that accounts may have.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the roles
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QVAccountRoleInformation QV_GetQVAccountRoleInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Returns the accounts.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the accounts
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QVAccountInfoList QV_GetAccountInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns what the session's own user may do.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return what the user may do
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native OwnUserPermission QV_GetOwnUserPermission(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns the warning that is shown before a login. It needs no session.
     *
     * @param unit the unit's registered name
     * @return the warning
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native AccountBanner QV_GetAccountBanner(String unit) throws DiskArrayException;

    /**
     * Returns the warning that is shown before a login, to a user who is logged in.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the warning
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native AccountBanner QV_GetAccountBannerAuth(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Sets the warning that is shown before a login.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param banner the warning; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetAccountBannerAuth(
            String unit, QVSessionInfo session, AccountBanner banner) throws DiskArrayException;

    // Audit log

    /**
     * Returns the settings of the audit log.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the settings
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native QVAuditLogInformation QV_GetQVAuditLogInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Sets the settings of the audit log.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param information the settings; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetQVAuditLogInformation(
            String unit, QVSessionInfo session, QVAuditLogInformation information)
            throws DiskArrayException;

    /**
     * Writes the audit log to a file.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param path path of the file, at most 1,023 bytes
     * @throws DiskArrayException with the library's code; 258 where unit or path is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_QVAuditLogExport(String unit, QVSessionInfo session, String path)
            throws DiskArrayException;

    /**
     * Clears the audit log.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param request the request; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_InitQVAuditLog(
            String unit, QVSessionInfo session, AuditLogInitRequest request)
            throws DiskArrayException;

    // Alert check and e-mail alerts

    /**
     * Returns the mail settings of this host.
     *
     * @return the settings; null where they cannot be built, without code 2817
     * @throws DiskArrayException with the library's code
     */
    public native EmailInfo QV_GetEmailInfo() throws DiskArrayException;

    /**
     * Sets the mail settings of this host.
     *
     * @param info the settings; not null
     * @throws DiskArrayException with the library's code
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetEmailInfo(EmailInfo info) throws DiskArrayException;

    /**
     * Returns the alert of an array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option the library's own value
     * @return the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native int QV_AlertCheck(String unit, QVSessionInfo session, int option)
            throws DiskArrayException;

    /**
     * Returns the alert of an array, in the extended form.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param option the library's own value
     * @return the alert
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native AlertCheckEx QV_AlertCheckEx(String unit, QVSessionInfo session, int option)
            throws DiskArrayException;

    /**
     * Returns how often alerts are checked for.
     *
     * @return the time between two checks, in the library's own unit
     * @throws DiskArrayException with the library's code
     */
    public native int QV_GetAlertInterval() throws DiskArrayException;

    /**
     * Sets how often alerts are checked for.
     *
     * @param interval the time between two checks, in the library's own unit
     * @throws DiskArrayException with the library's code
     */
    public native void QV_SetAlertInterval(int interval) throws DiskArrayException;

    /**
     * Returns who checks for alerts.
     *
     * @return the account
     * @throws DiskArrayException with the library's code; 2817 where the result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native AlertCheckUser QV_GetAlertCheckUser() throws DiskArrayException;

    /**
     * Sets who checks for alerts.
     *
     * @param user the account; not null
     * @throws DiskArrayException with the library's code
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetAlertCheckUser(AlertCheckUser user) throws DiskArrayException;

    /**
     * Returns the array's e-mail alert settings.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @return the settings, with the mail
     * @throws DiskArrayException with the library's code; 258 where unit is null; 2817 where the
     *     result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native EmailAlertInformation QV_GetEmailAlertInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /**
     * Sets the mail that the array sends on an alert.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param info the mail; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetEmailAlertInfo(String unit, QVSessionInfo session, EmailAlertInfo info)
            throws DiskArrayException;

    /**
     * Clears the mail that the array sends on an alert.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ClearEmailAlertInfo(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Changes the mode of the array's e-mail alert.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param mode the library's own value
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_ChangeEmailAlertMode(String unit, QVSessionInfo session, int mode)
            throws DiskArrayException;

    /**
     * Sends a test mail from a controller of the array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param test the controller; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_TestEmailAlert(String unit, QVSessionInfo session, EmailAlertTest test)
            throws DiskArrayException;

    // SNMP configuration

    /**
     * Reads a configuration from files of this host.
     *
     * @param pathA path of the first file, at most 1,023 bytes
     * @param pathB path of the second file, at most 1,023 bytes
     * @return the configuration
     * @throws DiskArrayException with the library's code; 258 where pathA or pathB is null; 2817
     *     where the result could not be built
     * @throws OutOfMemoryError where there is no native memory
     */
    public native SnmpConfigInformation QV_LoadSnmpConfig(String pathA, String pathB)
            throws DiskArrayException;

    /**
     * Writes a configuration to files of this host.
     *
     * @param pathA path of the first file, at most 1,023 bytes
     * @param pathB path of the second file, at most 1,023 bytes
     * @param config the configuration; not null
     * @throws DiskArrayException with the library's code; 258 where pathA or pathB is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SaveSnmpConfig(String pathA, String pathB, SnmpConfigInformation config)
            throws DiskArrayException;

    /**
     * Sets the configuration of the array.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param config the configuration; not null
     * @throws DiskArrayException with the library's code; 258 where unit is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetSnmpConfigonMemory(
            String unit, QVSessionInfo session, SnmpConfigInformation config)
            throws DiskArrayException;

    /**
     * Sets the configuration of the array from files of this host. Each call keeps 32 bytes of
     * native memory for good.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param first path of the first file, at most 1,023 bytes
     * @param second path of the second file, at most 1,023 bytes
     * @throws DiskArrayException with the library's code; 258 where unit, first or second is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SetSnmpConfig(
            String unit, QVSessionInfo session, String first, String second)
            throws DiskArrayException;

    /**
     * Writes the configuration of the array to files of this host. Each call keeps 32 bytes of
     * native memory for good.
     *
     * @param unit the unit's registered name
     * @param session the session from a login
     * @param first path of the first file, at most 1,023 bytes
     * @param second path of the second file, at most 1,023 bytes
     * @throws DiskArrayException with the library's code; 258 where unit, first or second is null
     * @throws OutOfMemoryError where there is no native memory
     */
    public native void QV_SnmpConfigOutput(
            String unit, QVSessionInfo session, String first, String second)
            throws DiskArrayException;
}
