// iSCSI ports with their targets, initiators and users, in a real Java process.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

using Iscsi = RegisteredUnit;

const Members kPort =
    int32sAt(0, {"port_valid", "set_valid"}) +
    Members{textAt(8, 40, "ip_address"), textAt(48, 40, "subnet"), textAt(88, 40, "gateway"),
            int32At(128, "port_num"), textAt(132, 20, "ether")} +
    int32sAt(152, {"keep_alive_timer", "mtu", "set_status", "host_count"});
const Members kTarget{int32At(0, "target_valid"),    textAt(4, 33, "target_name"),
                      textAt(37, 227, "iscsi_name"), int32At(264, "authmethod"),
                      int32At(268, "algorithm"),     int32At(272, "auth"),
                      textAt(276, 257, "user_name"), textAt(533, 35, "secret")};
const Members kInitiator{int32At(0, "initiator_valid"), int32At(4, "ctrl_flag"),
                         textAt(8, 33, "initiator_name"), textAt(41, 224, "iscsi_name"),
                         bytesAt(265, 32, "target_bitmap")};
const Members kLogin{int32At(0, "initiator_valid"), textAt(4, 224, "iscsi_name")};
const Members kUser{int32At(0, "user_valid"), int32At(4, "ctrl_flag"), textAt(8, 257, "user_name"),
                    textAt(265, 33, "secret"), bytesAt(298, 32, "target_bitmap")};
const Members kServer = int32sAt(0, {"port_valid", "set_valid", "isns_use"}) +
                        Members{textAt(12, 40, "ip_address"), int32At(52, "port_num")};
const Members kPing =
    Members{int32At(0, "port_valid"), int32At(4, "request_valid"), textAt(8, 40, "ip_address")} +
    int32sAt(48, {"status", "execute_count", "success_count", "schedule_count"});
const Members kPath{int32At(0, "path_valid"), textAt(4, 9, "other_serial_no"),
                    textAt(13, 33, "path[0].secret"), textAt(46, 33, "path[1].secret")};

const Members kTargetPort =
    int32sAt(0, {"port_valid", "security", "target_max_count", "target_count"}) +
    at(16, "target[0].", kTarget) + at(144288, "target[254].", kTarget);
const Members kInitiatorPort =
    int32sAt(0, {"port_valid", "security", "initiator_max_count", "initiator_count"}) +
    at(16, "initiator[0].", kInitiator) + at(76516, "initiator[255].", kInitiator);
const Members kLoginPort = int32sAt(0, {"port_valid", "initiator_max_count", "initiator_count"}) +
                           at(12, "initiator[0].", kLogin) + at(58152, "initiator[255].", kLogin);
const Members kUserPort = int32sAt(0, {"port_valid", "security", "user_max_count", "user_count"}) +
                          at(16, "user[0].", kUser) + at(169668, "user[511].", kUser);

/// The first and the last port of each controller.
Members ports(const Members& port, std::size_t first, std::size_t portBytes,
              std::size_t controllerBytes) {
  return at(first, "ctl[0].port[0].", port) + at(first + 7 * portBytes, "ctl[0].port[7].", port) +
         at(first + controllerBytes, "ctl[1].port[0].", port) +
         at(first + controllerBytes + 7 * portBytes, "ctl[1].port[7].", port);
}

TEST_F(Iscsi, ResultRecords) {
  const std::vector<jobject> arguments{unit_, session_};
  const Members option{int32At(0, "option")};
  expectBuilt("QV_GetiSCSIPortInformation", arguments, 2688, ports(kPort, 0, 168, 1344));
  expectBuilt("QV_GetiSCSITargetInformationAll", arguments, 2317700,
              option + ports(kTargetPort, 4, 144856, 1158848));
  expectBuilt("QV_GetiSCSIInitiatorInformationAll", arguments, 1229060,
              option + ports(kInitiatorPort, 4, 76816, 614528));
  expectBuilt("QV_GetiSCSILoginInitiatorInformationAll", arguments, 934080,
              ports(kLoginPort, 0, 58380, 467040));
  expectBuilt("QV_GetiSCSICHAPUserInformationAll", arguments, 2720004,
              option + ports(kUserPort, 4, 170000, 1360000));
  expectBuilt("QV_GetiSNSInformation", arguments, 896, ports(kServer, 0, 56, 448));
  expectBuilt("QV_GetiSCSIPingStatus", arguments, 1024, ports(kPing, 0, 64, 512));
  expectBuilt("QV_GetiSCSIRemotePath", arguments, 640,
              at(0, "arrayunit[0].", kPath) + at(560, "arrayunit[7].", kPath));

  const std::vector<jobject> ofPort{unit_, session_, number(1), number(6)};
  expectBuilt("QV_GetiSCSIInitiatorInformation", ofPort, 76820,
              option + at(4, "port.", kInitiatorPort));
  expectBuilt("QV_GetiSCSICHAPUserInformation", ofPort, 170004, option + at(4, "port.", kUserPort));
}

TEST_F(Iscsi, RequestRecords) {
  const auto inSession = [&](const char* method, const char* className, std::size_t size,
                             const Members& members, const std::vector<int>& numbers = {}) {
    const jobject object = create(className);
    std::vector<jobject> arguments{unit_, session_};
    for (const int value : numbers) {
      arguments.push_back(number(value));
    }
    arguments.push_back(object);
    const int parameter = 2 + static_cast<int>(numbers.size());
    expectRead(method, arguments, object, parameter, size, members);
    for (int index = 2; index < parameter; ++index) {
      EXPECT_EQ(lastInt(method, index), numbers[static_cast<std::size_t>(index - 2)]) << method;
    }
  };
  inSession("QV_SetiSCSIPortInformation", "QViSCSIPortInformation", 2688,
            ports(kPort, 0, 168, 1344));
  inSession("QV_CreateiSCSITarget", "QViSCSITargetInfo", 568, kTarget, {1, 7, 254});
  inSession("QV_ChangeiSCSITarget", "QViSCSITargetInfo", 568, kTarget, {-1, 2, 3});
  inSession("QV_DeleteiSCSITarget", "DeleteTargetList", 1020,
            {int32At(0, "target[0]"), int32At(1016, "target[254]")}, {1, 2});
  inSession("QV_SetiSCSIInitiatortInformation", "QViSCSIInitiatorPortInfo", 76816, kInitiatorPort,
            {1, 2});
  inSession("QV_SetiSCSICHAPUserInformation", "QViSCSICHAPUserPortInfo", 170000, kUserPort, {1, 2});
  inSession("QV_SetiSNSInformation", "QViSNSInformation", 896, ports(kServer, 0, 56, 448));
  inSession("QV_RequestiSCSIPing", "QViSCSIPing", 1024, ports(kPing, 0, 64, 512));
  inSession("QV_SetiSCSIRemotePath", "QViSCSIRemotePath", 80, kPath);
  inSession("QV_DeliSCSIRemotePath", "QViSCSIRemotePath", 80, kPath);
}

TEST_F(Iscsi, PlainArguments) {
  const auto expectNumbers = [](const char* method, const std::vector<int>& numbers) {
    for (std::size_t index = 0; index < numbers.size(); ++index) {
      EXPECT_EQ(lastInt(method, static_cast<int>(index) + 2), numbers[index]) << method;
    }
  };
  call("QV_InitiSCSITarget", {unit_, session_, number(-1), number(7)});
  expectNumbers("QV_InitiSCSITarget", {-1, 7});
  call("QV_ChangeiSCSITargetSecurity", {unit_, session_, number(1), number(0), number(5)});
  expectNumbers("QV_ChangeiSCSITargetSecurity", {1, 0, 5});
  for (const char* const method :
       {"QV_GetiSCSIInitiatorInformation", "QV_GetiSCSICHAPUserInformation"}) {
    EXPECT_EQ(call(method, {unit_, session_, number(4), number(9)}).failure,
              "DiskArrayException 20004");
    expectNumbers(method, {4, 9});
  }
  // The path stands before the session in Java and behind it in the library.
  expectRead("QV_iSCSICHAPUserImport", {unit_, text("users"), session_}, session_, 1, 32,
             {bytesAt(0, 32, "session_id")});
  EXPECT_EQ(lastText("QV_iSCSICHAPUserImport", 2), "users");
  EXPECT_EQ(call("QV_iSCSICHAPUserImport", {unit_, nullptr, session_}).failure,
            "DiskArrayException 258");
}

TEST_F(Iscsi, TargetsLiveOnTheirPort) {
  const auto target = [](const std::string& name, const std::string& user) {
    const jobject info = create("QViSCSITargetInfo");
    set(info, "target_name", name);
    set(info, "iscsi_name", "iqn.test");
    set(info, "user_name", user);
    set(info, "secret", "");
    return info;
  };
  const auto change = [&](const char* method, int port, int number_, jobject info) {
    return call(method, {unit_, session_, number(1), number(port), number(number_), info}).failure;
  };
  const auto all = [&] {
    return call("QV_GetiSCSITargetInformationAll", {unit_, session_}).result;
  };
  // 32 and 256 characters, as many as their members hold.
  const std::string name(32, 'n');
  const std::string user = std::string(255, 'u') + 'x';
  EXPECT_EQ(change("QV_CreateiSCSITarget", 1, 254, target(name, user)), "");
  EXPECT_EQ(change("QV_CreateiSCSITarget", 1, 254, target("t", "")), "DiskArrayException 20311");
  EXPECT_EQ(change("QV_CreateiSCSITarget", 1, 255, target("t", "")), "DiskArrayException 20004");
  EXPECT_EQ(change("QV_ChangeiSCSITarget", 0, 254, target("t", "")), "DiskArrayException 20004");
  jobject targets = all();
  EXPECT_EQ(get(targets, "ctl"), "QViSCSITargetCTLInfo[2]");
  EXPECT_EQ(get(targets, "ctl[0].port"), "QViSCSITargetPortInfo[8]");
  EXPECT_EQ(get(targets, "ctl[0].port[7].target"), "QViSCSITargetInfo[255]");
  EXPECT_EQ(get(targets, "ctl[0].port[7].target[254].target_name"), "");
  EXPECT_EQ(get(targets, "ctl[1].port[1].target_count"), "2");
  EXPECT_EQ(get(targets, "ctl[1].port[1].target[254].target_name"), name);
  EXPECT_EQ(get(targets, "ctl[1].port[1].target[254].user_name"), user);

  EXPECT_EQ(change("QV_ChangeiSCSITarget", 1, 254, target("renamed", "")), "");
  EXPECT_EQ(get(all(), "ctl[1].port[1].target[254].target_name"), "renamed");
  const jobject list = create("DeleteTargetList");
  setLength(list, "target", 255);
  set(list, "target[254]", "1");
  call("QV_DeleteiSCSITarget", {unit_, session_, number(1), number(1), list});
  EXPECT_EQ(get(all(), "ctl[1].port[1].target_count"), "1");
  EXPECT_EQ(change("QV_ChangeiSCSITarget", 1, 0, target("renamed", "")), "");
  call("QV_InitiSCSITarget", {unit_, session_, number(1), number(1)});
  EXPECT_EQ(get(all(), "ctl[1].port[1].target[0].target_name"), "T000");
}

TEST_F(Iscsi, InitiatorsAndUsersOfAPort) {
  const jobject port = create("QViSCSIInitiatorPortInfo");
  // A place without an object would leave its bytes as they were.
  for (int place = 0; place < 256; ++place) {
    set(port, "initiator[" + std::to_string(place) + "].initiator_valid", place == 3 ? "1" : "0");
  }
  set(port, "initiator[3].initiator_name", "");
  set(port, "initiator[3].iscsi_name", "host");
  set(port, "initiator[3].target_bitmap[31]", "-128");
  const std::vector<jobject> ofPort{unit_, session_, number(0), number(1)};
  EXPECT_EQ(call("QV_SetiSCSIInitiatortInformation", {unit_, session_, number(0), number(1), port})
                .failure,
            "");
  const jobject kept = call("QV_GetiSCSIInitiatorInformation", ofPort).result;
  EXPECT_EQ(get(kept, "port.initiator_count"), "1");
  EXPECT_EQ(get(kept, "port.initiator[3].target_bitmap[31]"), "-128");
  const jobject logins = call("QV_GetiSCSILoginInitiatorInformationAll", {unit_, session_}).result;
  EXPECT_EQ(get(logins, "ctl[0].port[1].initiator[0].iscsi_name"), "host");
  EXPECT_EQ(get(call("QV_GetiSCSIPortInformation", {unit_, session_}).result,
                "ctl[0].port[1].host_count"),
            "1");

  EXPECT_EQ(call("QV_iSCSICHAPUserImport", {unit_, text("/lists/users"), session_}).failure, "");
  const jobject users = call("QV_GetiSCSICHAPUserInformationAll", {unit_, session_}).result;
  EXPECT_EQ(get(users, "ctl[1].port[7].user"), "QViSCSICHAPUserInfo[512]");
  EXPECT_EQ(get(users, "ctl[0].port[0].user[0].user_name"), "users");
}

TEST_F(Iscsi, PingMakesProgress) {
  const jobject request = create("QViSCSIPing");
  set(request, "ctl[0].port[0].ip_address", "192.0.2.7");
  set(request, "ctl[0].port[1].ip_address", "198.51.100.7");
  for (const std::string port : {"ctl[0].port[0].", "ctl[0].port[1]."}) {
    set(request, port + "request_valid", "1");
    set(request, port + "schedule_count", "2");
  }
  EXPECT_EQ(call("QV_RequestiSCSIPing", {unit_, session_, request}).failure, "");
  const auto status = [&] { return call("QV_GetiSCSIPingStatus", {unit_, session_}).result; };
  EXPECT_EQ(get(status(), "ctl[0].port[0].execute_count"), "1");
  const jobject done = status();
  EXPECT_EQ(get(done, "ctl[0].port[0].status"), "2");
  EXPECT_EQ(get(done, "ctl[0].port[0].success_count"), "2");
  EXPECT_EQ(get(done, "ctl[0].port[1].success_count"), "0");
  EXPECT_EQ(get(status(), "ctl[0].port[0].execute_count"), "2");
}

TEST_F(Iscsi, RemotePaths) {
  const jobject path = create("QViSCSIRemotePath");
  set(path, "other_serial_no", "85000202");
  set(path, "path[0].secret", "first");
  set(path, "path[1].secret", std::string(32, 's'));
  EXPECT_EQ(call("QV_SetiSCSIRemotePath", {unit_, session_, path}).failure, "");
  const auto paths = [&] { return call("QV_GetiSCSIRemotePath", {unit_, session_}).result; };
  EXPECT_EQ(get(paths(), "arrayunit[0].other_serial_no"), "85000202");
  EXPECT_EQ(get(paths(), "arrayunit[0].path[1].secret"), std::string(32, 's'));
  EXPECT_EQ(call("QV_DeliSCSIRemotePath", {unit_, session_, path}).failure, "");
  EXPECT_EQ(get(paths(), "arrayunit[0].path_valid"), "0");
  EXPECT_EQ(call("QV_DeliSCSIRemotePath", {unit_, session_, path}).failure,
            "DiskArrayException 20004");
}

}  // namespace
}  // namespace quorvelj::testing
