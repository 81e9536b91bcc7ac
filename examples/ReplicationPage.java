import tessaly.str.diskarray.CTGInfo;
import tessaly.str.diskarray.CreateGemlynPair;
import tessaly.str.diskarray.DiskArrayException;
import tessaly.str.diskarray.LuMigrationInformation;
import tessaly.str.diskarray.LuMigrationPairInfo;
import tessaly.str.diskarray.LuMigrationRequest;
import tessaly.str.diskarray.LuMigrationRequestPairInfo;
import tessaly.str.diskarray.LuMigrationReserve;
import tessaly.str.diskarray.MirrorLUInfo;
import tessaly.str.diskarray.PairInfo;
import tessaly.str.diskarray.PairLUInfo;
import tessaly.str.diskarray.PairOperation;
import tessaly.str.diskarray.SpecifyCTGInfo;
import tessaly.str.diskarray.SpecifyPairInfo;
import tessaly.str.diskarray.SplitGemlynPair;

/** A copy pair from its creation to its end, and a logical unit that moves. */
final class ReplicationPage {
    private static final int PRIMARY = 40;
    private static final int SECONDARY = 41;
    private static final int GROUP = 7;
    private static final int MOVING = 50;
    private static final int TARGET = 51;
    /** What a tour waits for at most, in readings. */
    private static final int PATIENCE = 10;

    private final Visit visit;

    private ReplicationPage(Visit visit) {
        this.visit = visit;
    }

    static void show(Visit visit) {
        ReplicationPage page = new ReplicationPage(visit);
        visit.page("Replication");
        visit.simulate("A copy pair", page::copyPair);
        visit.simulate("A logical unit that moves", page::migration);
    }

    private <T extends PairOperation> T onThePair(T operation) {
        operation.ctg_valid = 1;
        operation.ctg_info = new SpecifyCTGInfo();
        operation.ctg_info.ctg_set_flag = 1;
        operation.ctg_info.ctg_no = GROUP;
        operation.ctg_info.ctg_name = "tour-group";
        operation.pair_info = new SpecifyPairInfo();
        operation.pair_info.pair_set_flag = 1;
        operation.pair_info.pair_name = "tour-pair";
        operation.pair_info.pvol_lun = PRIMARY;
        operation.pair_info.pair_lun = SECONDARY;
        return operation;
    }

    private void copyPair() throws DiskArrayException {
        Table table = new Table("After", "LU", "Copy", "Pair", "Status", "In step", "Message");
        CreateGemlynPair creation = onThePair(new CreateGemlynPair());
        creation.copy_speed = 2;
        Visit.ARRAY.QV_CreateGemlynPair(visit.unit, visit.session, creation);
        showUntilInStep("its creation", table);

        SplitGemlynPair split = onThePair(new SplitGemlynPair());
        split.add_message = "before the update";
        Visit.ARRAY.QV_SplitGemlynPair(visit.unit, visit.session, split);
        addPair("its split", table);

        PairOperation operation = onThePair(new PairOperation());
        Visit.ARRAY.QV_ResyncGemlynPair(visit.unit, visit.session, operation);
        showUntilInStep("its resynchronisation", table);
        visit.show(table);

        CTGInfo group = Visit.ARRAY.QV_GetCTGInformation(visit.unit, visit.session).gmss_info[GROUP];
        visit.say("it is in group " + group.ctg_no + ", " + group.ctg_name);
        Visit.ARRAY.QV_SimpleGemlynPair(visit.unit, visit.session, operation);
        visit.say("dissolved, " + pairs().pair_count + " pairs left");
    }

    private PairInfo pairs() throws DiskArrayException {
        return Visit.ARRAY.QV_GetPairInformationLite(visit.unit, visit.session);
    }

    private void showUntilInStep(String event, Table table) throws DiskArrayException {
        int rate = 0;
        for (int reading = 0; reading < PATIENCE && rate < 100; reading++) {
            rate = addPair(event, table);
        }
    }

    /** Adds the pair's row and returns how much of it is synchronised, in percent. */
    private int addPair(String event, Table table) throws DiskArrayException {
        for (PairLUInfo lu : pairs().lu) {
            for (int index = 0; lu.lun == PRIMARY && index < lu.mirror_count; index++) {
                MirrorLUInfo pair = lu.m_info[index];
                table.row(event, lu.lun, pair.lun, pair.pair_name, pair.pair_status,
                        pair.synchronized_rate + " %", pair.add_message);
                return pair.synchronized_rate;
            }
        }
        return 0;
    }

    private void migration() throws DiskArrayException {
        LuMigrationReserve reserve = new LuMigrationReserve();
        reserve.reserve_lu = new byte[8192];
        reserve.reserve_lu[TARGET] = 1;
        Visit.ARRAY.QV_AddLuMigrationReserveLU(visit.unit, visit.session, reserve);

        LuMigrationRequest request = new LuMigrationRequest();
        LuMigrationRequestPairInfo moving = new LuMigrationRequestPairInfo();
        moving.pvol_lun = MOVING;
        moving.svol_lun = TARGET;
        moving.copying_pace = 1;
        request.request_pair_count = 1;
        request.lu = new LuMigrationRequestPairInfo[] {moving};
        Visit.ARRAY.QV_StartLuMigration(visit.unit, visit.session, request);

        Table table = new Table("LU", "To", "State", "Copied");
        int percent = 0;
        for (int reading = 0; reading < PATIENCE && percent < 100; reading++) {
            LuMigrationInformation information =
                    Visit.ARRAY.QV_GetLuMigrationInformation(visit.unit, visit.session);
            for (int index = 0; index < information.pair_lu_count; index++) {
                LuMigrationPairInfo pair = information.pair_lu[index];
                table.row(pair.pvol_lun, pair.svol_lun, pair.migration_state, pair.percent + " %");
                percent = pair.percent;
            }
        }
        visit.show(table);
        Visit.ARRAY.QV_SplitLuMigration(visit.unit, visit.session, request);
        Visit.ARRAY.QV_DeleteLuMigrationReserveLU(visit.unit, visit.session, reserve);
    }
}
