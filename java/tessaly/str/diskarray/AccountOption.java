package tessaly.str.diskarray;

/** Settings for all accounts of an array. */
public class AccountOption {
    public AccountOptionInfo option_info;
    public AccountAdditionalInfo additional_info;
}
