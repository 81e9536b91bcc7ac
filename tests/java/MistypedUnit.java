/** Has a field of a unit in another type. */
public final class MistypedUnit {
    public int unit_name;
}
