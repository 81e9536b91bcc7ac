import java.io.File;
import tessaly.str.diskarray.AlertCheckEx;
import tessaly.str.diskarray.DiskArrayException;
import tessaly.str.diskarray.EmailAlertInfo;
import tessaly.str.diskarray.EmailAlertInformation;
import tessaly.str.diskarray.EmailAlertTest;
import tessaly.str.diskarray.EmailInfo;
import tessaly.str.diskarray.MicroReplaceInformation;
import tessaly.str.diskarray.NNCBiosRevisionList;
import tessaly.str.diskarray.QVAuditLogInformation;
import tessaly.str.diskarray.QVAuditLogSyslogServer;
import tessaly.str.diskarray.SnmpConfigInformation;

/**
 * Firmware, alerts, audit log and SNMP. Nothing of a real array is changed: what changes something
 * is shown on the simulator's network only.
 */
final class MaintenancePage {
    private static final int NO_OPTION = 0;
    private static final int MOST_POLLS = 100;

    private MaintenancePage() {}

    static void show(Visit visit) {
        visit.page("Maintenance");
        visit.simulate("Firmware update", () -> update(visit));
        visit.step("Firmware of enclosures and NAS nodes", () -> firmware(visit));
        visit.simulate("Test mail of an alert", () -> testMail(visit));
        visit.step("Alerts", () -> alerts(visit));
        visit.simulate("SNMP configuration by way of files", () -> snmp(visit));
        visit.simulate("A syslog server for the audit log", () -> addServer(visit));
        visit.step("Audit log", () -> auditLog(visit));
        visit.change("Exporting the audit log", () -> export(visit));
    }

    private static void update(Visit visit) throws DiskArrayException {
        File file = Visit.newFile("firmware", "0A10/B simulated firmware\n");
        Table table = new Table("Step", "Result");
        int files = Visit.ARRAY.QV_MicroFileConcat(
                visit.unit, visit.session, file.getPath(), NO_OPTION);
        table.row("staged", files + " file, revision " + Visit.ARRAY.QV_GetNewMicroRevision());
        Visit.ARRAY.QV_MicroDownload(visit.unit, visit.session, NO_OPTION, NO_OPTION, NO_OPTION);
        table.row("downloaded", "counts " + countsOfDownload(visit));
        MicroReplaceInformation replaced;
        do {
            replaced = Visit.ARRAY.QV_MicroReplaceEx(visit.unit, visit.session, NO_OPTION);
            table.row("replaced", "controller " + replaced.ReplaceCTL
                    + (replaced.WaitCancelreq != 0 ? ", the other waits" : ""));
        } while (replaced.WaitCancelreq != 0);
        Visit.ARRAY.QV_CompleteMicroReplace(visit.unit, visit.session, NO_OPTION);
        Visit.ARRAY.QV_CancelMicroFileConcat();
        table.row("completed", "staged files left: "
                + Visit.ARRAY.QV_GetMicroFileInformation().valid);
        visit.show(table);
    }

    /** Polls until the count stands still. */
    private static String countsOfDownload(Visit visit) throws DiskArrayException {
        StringBuilder counts = new StringBuilder();
        int last = -1;
        for (int poll = 0; poll < MOST_POLLS; poll++) {
            int count = Visit.ARRAY.QV_GetMicroDownloadCount(visit.unit);
            if (count == last) {
                break;
            }
            counts.append(poll == 0 ? "" : ", ").append(count);
            last = count;
        }
        return counts.toString();
    }

    private static void firmware(Visit visit) throws DiskArrayException {
        Table table = new Table("Part", "Revision");
        table.row("enclosures", Visit.ARRAY.QV_GetENCMicroInformationEx(visit.unit, visit.session)
                .read_rev.bas_rev.rev_main);
        NNCBiosRevisionList list =
                Visit.ARRAY.QV_GetNNCBiosRevisionList(visit.unit, visit.session);
        for (int node = 0; node < list.mount.length; node++) {
            if (list.mount[node] != 0) {
                table.row("NAS node " + node, list.nnc_revision[node].nncbiosrevision);
            }
        }
        visit.show(table);
    }

    private static void testMail(Visit visit) throws DiskArrayException {
        EmailAlertInfo mail = new EmailAlertInfo();
        mail.smtp = "192.0.2.25";
        mail.domain = "example.org";
        mail.from_address = "array@example.org";
        mail.to_address = new String[] {"operator@example.org", "", "", ""};
        mail.reply_address = "";
        mail.additional_info = "array tour";
        mail.send_type = new int[4];
        Visit.ARRAY.QV_SetEmailAlertInfo(visit.unit, visit.session, mail);
        EmailAlertTest test = new EmailAlertTest();
        test.ctl = 1;
        Visit.ARRAY.QV_TestEmailAlert(visit.unit, visit.session, test);
        EmailInfo host = new EmailInfo();
        host.on_off = 1;
        host.domain = mail.domain;
        host.smtp = mail.smtp;
        host.from = "console@example.org";
        host.to = new String[] {"operator@example.org", "night-shift@example.org"};
        host.tonum = host.to.length;
        Visit.ARRAY.QV_SetEmailInfo(host);
        EmailAlertInformation alert =
                Visit.ARRAY.QV_GetEmailAlertInformation(visit.unit, visit.session);
        Table table = new Table("Controller", "Mail server", "To", "Tested", "Result");
        for (int controller = 0; controller < alert.ctl_flag.length; controller++) {
            boolean tested = alert.ctl_flag[controller] != 0;
            table.row(controller, alert.mail.smtp, alert.mail.to_address[0],
                    tested ? "yes" : "no", tested ? alert.exec_result : "");
        }
        visit.show(table);
    }

    private static void alerts(Visit visit) throws DiskArrayException {
        AlertCheckEx check = Visit.ARRAY.QV_AlertCheckEx(visit.unit, visit.session, NO_OPTION);
        EmailInfo host = Visit.ARRAY.QV_GetEmailInfo();
        EmailAlertInformation array =
                Visit.ARRAY.QV_GetEmailAlertInformation(visit.unit, visit.session);
        visit.show(new Table("Setting", "Value")
                .row("alert", check.alert)
                .row("checked every", Visit.ARRAY.QV_GetAlertInterval() + " s")
                .row("this host writes to", String.join(", ", host.to))
                .row("the array writes to", array.mail.to_address[0]));
    }

    private static void snmp(Visit visit) throws DiskArrayException {
        SnmpConfigInformation config = new SnmpConfigInformation();
        config.set_valid = 1;
        config.conf = "sysContact operator\nsysLocation hall 2\n";
        config.name = "tour";
        String text = Visit.newFile("snmp", "").getPath();
        String name = Visit.newFile("snmp-name", "").getPath();
        Visit.ARRAY.QV_SaveSnmpConfig(text, name, config);
        Visit.ARRAY.QV_SetSnmpConfig(visit.unit, visit.session, text, name);
        Visit.ARRAY.QV_SnmpConfigOutput(visit.unit, visit.session, text, name);
        SnmpConfigInformation output = Visit.ARRAY.QV_LoadSnmpConfig(text, name);
        Table table = new Table("Configuration", "Line");
        for (String line : output.conf.split("\n")) {
            table.row(output.name, line);
        }
        visit.show(table);
    }

    private static void addServer(Visit visit) throws DiskArrayException {
        QVAuditLogInformation settings =
                Visit.ARRAY.QV_GetQVAuditLogInformation(visit.unit, visit.session);
        settings.set_valid = 1;
        settings.auditlog_server.serverall_used = 1;
        settings.auditlog_server.server[0].server_used = 1;
        settings.auditlog_server.server[0].ip_address = "192.0.2.14";
        Visit.ARRAY.QV_SetQVAuditLogInformation(visit.unit, visit.session, settings);
    }

    private static void auditLog(Visit visit) throws DiskArrayException {
        QVAuditLogInformation settings =
                Visit.ARRAY.QV_GetQVAuditLogInformation(visit.unit, visit.session);
        Table table = new Table("Log", "Used", "Address");
        table.row("internal", settings.auditlog_internallog.internallog_used, "");
        for (QVAuditLogSyslogServer server : settings.auditlog_server.server) {
            table.row("syslog", server.server_used, server.ip_address);
        }
        visit.show(table);
    }

    private static void export(Visit visit) throws DiskArrayException {
        File file = Visit.newFile("audit-log", "");
        Visit.ARRAY.QV_QVAuditLogExport(visit.unit, visit.session, file.getPath());
    }
}
