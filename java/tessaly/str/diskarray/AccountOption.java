package tessaly.str.diskarray;

/** Settings for all accounts of an array. Layout assumed. */
public class AccountOption {
    public AccountOptionInfo option_info;
    public AccountAdditionalInfo additional_info;
}
