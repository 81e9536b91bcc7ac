import tessaly.str.diskarray.DeleteTargetList;
import tessaly.str.diskarray.DiskArrayException;
import tessaly.str.diskarray.FibreInformation;
import tessaly.str.diskarray.FibreInformationPort;
import tessaly.str.diskarray.LANInformation;
import tessaly.str.diskarray.LANPortNumberCtl;
import tessaly.str.diskarray.MainteLanInfoDetail;
import tessaly.str.diskarray.QViSCSICHAPUserCTLInfo;
import tessaly.str.diskarray.QViSCSICHAPUserPortInfo;
import tessaly.str.diskarray.QViSCSIInitiatorCTLInfo;
import tessaly.str.diskarray.QViSCSIInitiatorPortInfo;
import tessaly.str.diskarray.QViSCSILoginInitiatorCTLInfo;
import tessaly.str.diskarray.QViSCSIPing;
import tessaly.str.diskarray.QViSCSIPingPort;
import tessaly.str.diskarray.QViSCSIPortInformation;
import tessaly.str.diskarray.QViSCSIPortPortInfo;
import tessaly.str.diskarray.QViSCSITargetInfo;
import tessaly.str.diskarray.QViSCSITargetInformationAll;
import tessaly.str.diskarray.QViSCSITargetPortInfo;

/** Host ports with their targets, and the addresses of the LANs. */
final class PortsPage {
    private static final int NUMBER = 200;

    private PortsPage() {}

    static void show(Visit visit) {
        visit.page("Ports");
        visit.step("iSCSI ports", () -> ports(visit));
        visit.change("A new iSCSI target", () -> createTarget(visit));
        visit.step("iSCSI targets", () -> targets(visit));
        visit.step("iSCSI hosts", () -> hosts(visit));
        visit.change("Ping from an iSCSI port", () -> ping(visit));
        visit.step("Fibre Channel ports", () -> fibre(visit));
        visit.step("LAN addresses", () -> lan(visit));
    }

    private static void ports(Visit visit) throws DiskArrayException {
        QViSCSIPortInformation ports = Visit.ARRAY.QV_GetiSCSIPortInformation(visit.unit, visit.session);
        Table table = new Table("Controller", "Port", "Address", "Subnet", "TCP port", "MTU", "Ethernet");
        for (int controller = 0; controller < ports.ctl.length; controller++) {
            for (int number = 0; number < ports.ctl[controller].port.length; number++) {
                QViSCSIPortPortInfo port = ports.ctl[controller].port[number];
                if (port.port_valid != 0) {
                    table.row(controller, number, port.ip_address, port.subnet, port.port_num,
                            port.mtu, port.ether);
                }
            }
        }
        visit.show(table);
    }

    private static void createTarget(Visit visit) throws DiskArrayException {
        QViSCSITargetInfo target = new QViSCSITargetInfo();
        target.target_name = "tour";
        target.iscsi_name = "iqn.2004-01.example.tour:disk";
        target.user_name = "";
        target.secret = "";
        DeleteTargetList deletion = new DeleteTargetList();
        deletion.target = new int[255];
        deletion.target[NUMBER] = 1;
        visit.make("iSCSI target " + target.target_name,
                () -> Visit.ARRAY.QV_CreateiSCSITarget(
                        visit.unit, visit.session, 0, 1, NUMBER, target),
                () -> Visit.ARRAY.QV_DeleteiSCSITarget(visit.unit, visit.session, 0, 1, deletion));
    }

    private static void targets(Visit visit) throws DiskArrayException {
        QViSCSITargetInformationAll all =
                Visit.ARRAY.QV_GetiSCSITargetInformationAll(visit.unit, visit.session);
        Table table = new Table("Controller", "Port", "Target", "Name", "iSCSI name");
        for (int controller = 0; controller < all.ctl.length; controller++) {
            for (int number = 0; number < all.ctl[controller].port.length; number++) {
                QViSCSITargetPortInfo port = all.ctl[controller].port[number];
                for (int slot = 0; slot < port.target.length; slot++) {
                    if (port.target[slot].target_valid != 0) {
                        table.row(controller, number, slot, port.target[slot].target_name,
                                port.target[slot].iscsi_name);
                    }
                }
            }
        }
        visit.show(table);
    }

    private static void hosts(Visit visit) throws DiskArrayException {
        QViSCSIInitiatorCTLInfo[] registered =
                Visit.ARRAY.QV_GetiSCSIInitiatorInformationAll(visit.unit, visit.session).ctl;
        QViSCSILoginInitiatorCTLInfo[] loggedIn =
                Visit.ARRAY.QV_GetiSCSILoginInitiatorInformationAll(visit.unit, visit.session).ctl;
        QViSCSICHAPUserCTLInfo[] users =
                Visit.ARRAY.QV_GetiSCSICHAPUserInformationAll(visit.unit, visit.session).ctl;
        Table table = new Table("Controller", "Port", "Initiators", "Logged in", "CHAP users");
        for (int controller = 0; controller < registered.length; controller++) {
            for (int number = 0; number < registered[controller].port.length; number++) {
                QViSCSIInitiatorPortInfo port = registered[controller].port[number];
                QViSCSICHAPUserPortInfo chap = users[controller].port[number];
                if (port.port_valid != 0) {
                    table.row(controller, number,
                            port.initiator_count + " of " + port.initiator_max_count,
                            loggedIn[controller].port[number].initiator_count,
                            chap.user_count + " of " + chap.user_max_count);
                }
            }
        }
        visit.show(table);
    }

    private static void ping(Visit visit) throws DiskArrayException {
        QViSCSIPing request = Visit.ARRAY.QV_GetiSCSIPingStatus(visit.unit, visit.session);
        QViSCSIPingPort port = request.ctl[0].port[0];
        port.request_valid = 1;
        port.ip_address = "192.0.2.1";
        port.schedule_count = 3;
        Visit.ARRAY.QV_RequestiSCSIPing(visit.unit, visit.session, request);
        Table table = new Table("Address", "Pings", "Answers", "Status");
        for (int look = 0; look < 3; look++) {
            port = Visit.ARRAY.QV_GetiSCSIPingStatus(visit.unit, visit.session).ctl[0].port[0];
            table.row(port.ip_address, port.execute_count + " of " + port.schedule_count,
                    port.success_count, port.status);
        }
        visit.show(table);
    }

    private static void fibre(Visit visit) throws DiskArrayException {
        FibreInformation[] controllers = Visit.ARRAY.QV_GetFibreInformation(visit.unit, visit.session);
        Table table = new Table("Controller", "Port", "Port name", "Speed", "Firmware", "Hosts");
        for (int controller = 0; controller < controllers.length; controller++) {
            for (int number = 0; number < controllers[controller].port.length; number++) {
                FibreInformationPort port = controllers[controller].port[number];
                if (!port.port_name.isEmpty()) {
                    table.row(controller, number, port.port_name, port.set_speed,
                            controllers[controller].sfc[number].oper_firmware,
                            controllers[controller].security[number].permission_count);
                }
            }
        }
        visit.show(table);
    }

    private static void lan(Visit visit) throws DiskArrayException {
        Table table = new Table("Controller", "LAN", "Address", "Subnet", "TCP port", "Secured");
        LANPortNumberCtl[] numbers = Visit.ARRAY.QV_GetLANPortNumber(visit.unit, visit.session).ctl;
        MainteLanInfoDetail[] maintenance =
                Visit.ARRAY.QV_GetMainteLanInfo(visit.unit, visit.session).ctl;
        for (int controller = 0; controller < numbers.length; controller++) {
            LANInformation lan =
                    Visit.ARRAY.QV_GetLANInformation(visit.unit, visit.session, controller);
            table.row(controller, "user", lan.ip_address, lan.subnet,
                    numbers[controller].normal_port, numbers[controller].ssl_port_num);
            table.row(controller, "maintenance", maintenance[controller].ip_address,
                    maintenance[controller].subnet, "", "");
        }
        visit.show(table);
    }
}
