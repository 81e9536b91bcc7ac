import tessaly.str.diskarray.Account;
import tessaly.str.diskarray.AccountBanner;
import tessaly.str.diskarray.AccountIdentifier;
import tessaly.str.diskarray.AccountOption;
import tessaly.str.diskarray.DiskArrayException;
import tessaly.str.diskarray.OwnUserPermission;
import tessaly.str.diskarray.QVAccountBaseInfo;
import tessaly.str.diskarray.QVAccountRoleInformation;

/** Accounts and their settings. */
final class AccountsPage {
    private AccountsPage() {}

    static void show(Visit visit) {
        visit.page("Accounts");
        visit.change("A new account", () -> create(visit));
        visit.step("Accounts", () -> accounts(visit));
        visit.change("A banner", () -> setBanner(visit));
        visit.step("Settings", () -> settings(visit));
    }

    private static void create(Visit visit) throws DiskArrayException {
        Account viewer = new Account();
        viewer.user_id = "tour-viewer";
        viewer.set_passwd = 1;
        viewer.passwd = "see but not touch";
        viewer.role = 3;
        viewer.account_enable = 1;
        AccountIdentifier identifier = new AccountIdentifier();
        identifier.user_id = viewer.user_id;
        visit.make("account " + viewer.user_id,
                () -> Visit.ARRAY.QV_CreateAccount(visit.unit, visit.session, viewer),
                () -> Visit.ARRAY.QV_DeleteAccount(visit.unit, visit.session, identifier));
    }

    private static void accounts(Visit visit) throws DiskArrayException {
        QVAccountRoleInformation roles =
                Visit.ARRAY.QV_GetQVAccountRoleInformation(visit.unit, visit.session);
        Table table = new Table("Account", "Role", "Enabled");
        for (QVAccountBaseInfo account :
                Visit.ARRAY.QV_GetAccountInformation(visit.unit, visit.session).account_info) {
            if (!account.user_id.isEmpty()) {
                table.row(account.user_id, roles.role_info[account.role].role_name,
                        account.account_enable == 0 ? "no" : "yes");
            }
        }
        visit.show(table);
    }

    private static void setBanner(Visit visit) throws DiskArrayException {
        AccountBanner before = Visit.ARRAY.QV_GetAccountBannerAuth(visit.unit, visit.session);
        AccountBanner banner = new AccountBanner();
        banner.warning_banner_display = 1;
        banner.warning_banner = "Authorised users only.";
        visit.make("the banner in place of the one before",
                () -> Visit.ARRAY.QV_SetAccountBannerAuth(visit.unit, visit.session, banner),
                () -> Visit.ARRAY.QV_SetAccountBannerAuth(visit.unit, visit.session, before));
    }

    private static void settings(Visit visit) throws DiskArrayException {
        OwnUserPermission permission = Visit.ARRAY.QV_GetOwnUserPermission(visit.unit, visit.session);
        AccountOption option = Visit.ARRAY.QV_GetAccountOption(visit.unit, visit.session);
        visit.show(new Table("Setting", "Value")
                .row("banner", Visit.ARRAY.QV_GetAccountBanner(visit.unit).warning_banner)
                .row("own role", permission.role)
                .row("operations allowed", permission.operation_auth.length)
                .row("shortest password", option.option_info.password_min_length)
                .row("session timeout", option.option_info.session_timeout)
                .row("additional units",
                        Visit.ARRAY.QV_GetAdditionalUnitInformation(visit.unit, visit.session).add_unit_num));
    }
}
