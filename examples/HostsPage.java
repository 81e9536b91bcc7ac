import java.util.ArrayList;
import java.util.List;
import tessaly.str.diskarray.ControllerRequest;
import tessaly.str.diskarray.DeleteHGPortList;
import tessaly.str.diskarray.DiskArrayException;
import tessaly.str.diskarray.HGInfo;
import tessaly.str.diskarray.HGList;
import tessaly.str.diskarray.LuMapping;
import tessaly.str.diskarray.LuMappingHGInfo;
import tessaly.str.diskarray.MappingGuardList;

/** Host groups of the ports, and the LUs that are mapped to them. */
final class HostsPage {
    private static final int LUS = 8192;
    private static final int LU_GUARDED = 20604;
    /** A Fibre Channel port of the simulator. */
    private static final int PORT = 2;

    private HostsPage() {}

    /** Maps the second and third of the new logical units; the first may be in a pool. */
    static void show(Visit visit, List<Integer> made) {
        visit.page("Hosts");
        int[] group = new int[1];
        visit.change("A new host group on a port", () -> group[0] = create(visit, made));
        visit.refuse("Mapping a guarded LU", "QV_SetLuMappingList", LU_GUARDED, "the LU is guarded",
                () -> mapGuarded(visit, group[0], made));
        visit.step("Host groups and what is mapped to them", () -> list(visit));
        visit.step("Ports of each mapped LU", () -> ports(visit));
    }

    /** Takes the first number that is free and maps an LU to it. */
    private static int create(Visit visit, List<Integer> made) throws DiskArrayException {
        HGInfo[] groups = Visit.ARRAY.QV_GetHGList(visit.unit, visit.session).ctl[0].port[PORT].hg;
        int free = 1;
        while (groups[free].valid != 0) {
            free++;
        }
        int number = free;
        HGInfo group = new HGInfo();
        group.hgname = "tour-hosts";
        DeleteHGPortList deletion = new DeleteHGPortList();
        deletion.hg = new byte[64];
        deletion.hg[number / 8] = (byte) (1 << number % 8);
        visit.make("host group " + number + " of port " + PORT,
                () -> Visit.ARRAY.QV_CreateHG(visit.unit, visit.session, 0, PORT, number, group),
                () -> Visit.ARRAY.QV_DeleteHGPortList(visit.unit, visit.session, 0, PORT, deletion));
        if (made.size() > 1) {
            map(visit, number, made.get(1));
        }
        return number;
    }

    /** Maps an LU under the number 0 to a group of the port. */
    private static void map(Visit visit, int group, int lu) throws DiskArrayException {
        Object[] known = Visit.ARRAY.QV_GetLuMappingList(visit.unit, visit.session, 0, PORT, group);
        LuMappingHGInfo mapping = (LuMappingHGInfo) known[1];
        mapping.lu[0] = lu;
        Visit.ARRAY.QV_SetLuMappingList(visit.unit, visit.session, 0, PORT, group, mapping);
    }

    private static void list(Visit visit) throws DiskArrayException {
        HGList list = Visit.ARRAY.QV_GetHGList(visit.unit, visit.session);
        LuMapping mapping = Visit.ARRAY.QV_GetLuMappingListAllLite(visit.unit, visit.session);
        Table table = new Table("Controller", "Port", "Group", "Name", "LUs by number");
        for (int controller = 0; controller < list.ctl.length; controller++) {
            for (int port = 0; port < list.ctl[controller].port.length; port++) {
                HGInfo[] groups = list.ctl[controller].port[port].hg;
                for (int group = 0; group < groups.length; group++) {
                    if (groups[group].valid != 0) {
                        table.row(controller, port, group, groups[group].hgname,
                                mapped(mapping.ctl[controller].port[port].hg[group]));
                    }
                }
            }
        }
        visit.show(table);
    }

    private static String mapped(LuMappingHGInfo mapping) {
        List<String> lus = new ArrayList<String>();
        for (int number = 0; number < mapping.lu.length; number++) {
            if (mapping.lu[number] >= 0 && mapping.lu[number] < LUS) {
                lus.add(number + ": " + mapping.lu[number]);
            }
        }
        return lus.isEmpty() ? "-" : String.join(", ", lus);
    }

    private static void ports(Visit visit) throws DiskArrayException {
        int[][] ports = Visit.ARRAY.QV_GetLuMappingPortAssignInfo(
                visit.unit, visit.session, new ControllerRequest()).lu_assign;
        Table table = new Table("LU", "Ports of controller 0", "Ports of controller 1");
        for (int lu = 0; lu < ports.length; lu++) {
            if ((ports[lu][0] | ports[lu][1]) != 0) {
                table.row(lu, ofBits(ports[lu][0]), ofBits(ports[lu][1]));
            }
        }
        visit.show(table);
    }

    private static String ofBits(int bits) {
        List<String> ports = new ArrayList<String>();
        for (int port = 0; port < 8; port++) {
            if ((bits >> port & 1) != 0) {
                ports.add(String.valueOf(port));
            }
        }
        return ports.isEmpty() ? "-" : String.join(", ", ports);
    }

    private static void mapGuarded(Visit visit, int group, List<Integer> made)
            throws DiskArrayException {
        Visit.need(group != 0 && made.size() > 2, "there is no new host group, or no new LU");
        int lu = made.get(2);
        MappingGuardList before = Visit.ARRAY.QV_GetMappingGuardList(visit.unit, visit.session);
        MappingGuardList guard = Visit.ARRAY.QV_GetMappingGuardList(visit.unit, visit.session);
        guard.lumap_guard[lu] = 1;
        visit.make("the guard of LU " + lu,
                () -> Visit.ARRAY.QV_SetMappingGuardList(visit.unit, visit.session, guard),
                () -> Visit.ARRAY.QV_SetMappingGuardList(visit.unit, visit.session, before));
        map(visit, group, lu);
    }
}
