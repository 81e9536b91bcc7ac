package tessaly.str.diskarray;

/** Settings for all accounts of an array. Layout assumed. */
public class AccountOption {
    /** Password and session settings. Null in a new object. */
    public AccountOptionInfo option_info;
    /** Further session settings. Null in a new object. */
    public AccountAdditionalInfo additional_info;
}
