// Firmware in a real Java process.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

class Firmware : public RegisteredUnit {
 protected:
  jobject file(const char* name, const char* content) {
    const std::string path = temporary(name);
    std::ofstream(path) << content;
    return text(path);
  }
  jobject done(const char* method, const std::vector<jobject>& arguments) {
    const Called called = call(method, arguments);
    EXPECT_EQ(called.failure, "") << method;
    return called.result;
  }
};

TEST_F(Firmware, Arguments) {
  const struct {
    const char* method;
    const char* kinds;
    bool value;
  } calls[] = {
      {"QV_MicroFileConcat", "uspi", true},
      {"QV_MicroFileConcat2", "usp", false},
      {"QV_MicroFileConcatEx", "usp", false},
      {"QV_MicroFileConcatEx2", "uspp", false},
      {"QV_CancelMicroFileConcat", "", false},
      {"QV_CancelMicroFileConcat2", "p", false},
      {"QV_GetMicroDownloadCount", "u", true},
      {"QV_GetMicroDownloadCountEx", "ui", true},
      {"QV_GetMicroDownloadCountEx2", "uip", true},
      {"QV_MicroDownload", "usiii", false},
      {"QV_MicroDownloadEx", "usiiii", false},
      {"QV_MicroDownloadEx2", "usiiiip", false},
      {"QV_MicroReplace", "usi", false},
      {"QV_MicroReplaceEx", "usi", false},
      {"QV_CompleteMicroReplace", "usi", false},
      {"QV_ENCMicroFileConcat", "usp", false},
      {"QV_ENCMicroFileConcatEx", "uspi", false},
      {"QV_CancelENCMicroFileConcat", "", false},
      {"QV_ENCMicroDownload", "usii", true},
      {"QV_GetENCMicroDownloadCount", "us", true},
      {"QV_ENCMicroReplace", "usi", false},
      {"QV_ENCMicroReplaceEx", "usii", false},
      {"QV_GetENCMicroInformationEx", "us", false},
      {"QV_GetNNCBiosRevisionList", "us", false},
      {"QV_PreparesNNCBiosDownload", "usi", false},
      {"QV_NNCBiosFileConcat", "usp", false},
      {"QV_CancelNNCBiosFileConcat", "", false},
      {"QV_NNCBiosDownload", "usii", false},
      {"QV_GetNNCBiosDownloadCount", "", true},
      {"QV_GetNNCBiosDownloadStatus", "usi", false},
      {"QV_GetNNCUpgradeStatusList", "us", false},
  };
  for (const auto& each : calls) {
    expectPassed(each.method, each.kinds, each.value);
  }
}

TEST_F(Firmware, Records) {
  expectBuilt("QV_GetMicroFileInformation", {}, 20,
              {textAt(0, 12, "micro"), int32At(12, "valid"), int32At(16, "booting_wait")});
  const auto replacement = int32sAt(0, {"valid", "WaitCancelreq", "ReplaceCTL"});
  expectBuilt("QV_MicroReplaceEx", {unit_, session_, number(1)}, 12, replacement);
  const jobject request = create("MicroReplaceCrosscallRequest");
  const std::vector<jobject> crosscall{unit_, session_, request};
  expectBuilt("QV_MicroReplaceCrosscall", crosscall, 12, replacement);
  expectRead("QV_MicroReplaceCrosscall", crosscall, request, 2, 8,
             int32sAt(0, {"ctl", "forced_mode"}));
  expectRead("QV_MicroReplaceCrosscall", crosscall, session_, 1, 32,
             {bytesAt(0, 32, "session_id")});

  const std::vector<Member> enclosure{
      int32At(0, "qv_type"),
      int32At(4, "device_type"),
      int32At(8, "micro_type"),
      int32At(12, "read_rev.bas_rev.valid_index"),
      textAt(16, 7, "read_rev.bas_rev.rev_main"),
      textAt(23, 3, "read_rev.bas_rev.rev_boot"),
      textAt(26, 3, "read_rev.bas_rev.rev_ectl"),
      textAt(29, 7, "read_rev.bas_rev.rev_rtr"),
      textAt(36, 7, "read_rev.bas_rev.rev_ses"),
      textAt(43, 9, "read_rev.bas_rev.rev_sas"),
      int32At(52, "read_rev.ext_rev.valid_index"),
      textAt(83, 9, "read_rev.ext_rev.rev_sas"),
      int32At(92, "read_rev.ext_rev_plus[0].valid_index"),
      textAt(123, 9, "read_rev.ext_rev_plus[0].rev_sas"),
  };
  expectBuilt("QV_GetENCMicroInformation", {}, 132, enclosure);
  expectBuilt("QV_GetENCMicroInformationEx", {unit_, session_}, 132, enclosure);

  expectBuilt("QV_GetLocalNNCBiosRevision", {}, 9, {textAt(0, 9, "nncbiosrevision")});
  expectBuilt("QV_GetNNCBiosRevisionList", {unit_, session_}, 52,
              {int32At(0, "mount[0]"), int32At(12, "mount[3]"),
               textAt(16, 9, "nnc_revision[0].nncbiosrevision"),
               textAt(43, 9, "nnc_revision[3].nncbiosrevision")});
  expectBuilt("QV_GetNNCBiosDownloadStatus", {unit_, session_, number(0)}, 8,
              int32sAt(0, {"downloadStatus", "errorInfo"}));
  expectBuilt("QV_GetNNCUpgradeStatusList", {unit_, session_}, 16,
              {int32At(0, "nnc_status[0].nncUpgradeStatus"),
               int32At(12, "nnc_status[3].nncUpgradeStatus")});
}

TEST_F(Firmware, ReplacementThatGoesOnIsASuccessOfOneMethodOnly) {
  // Of a forced failure the output stays as it was allocated: the object exists all the same.
  quorvelSimForceResult("QV_MicroReplaceEx", 4109, 1);
  const Called called = call("QV_MicroReplaceEx", {unit_, session_, number(0)});
  EXPECT_EQ(called.failure, "");
  EXPECT_NE(called.result, nullptr);
  quorvelSimForceResult("QV_MicroReplaceEx", 4110, 1);
  EXPECT_EQ(call("QV_MicroReplaceEx", {unit_, session_, number(0)}).failure,
            "DiskArrayException 4110");
  quorvelSimForceResult("QV_MicroReplaceCrosscall", 4109, 1);
  EXPECT_EQ(
      call("QV_MicroReplaceCrosscall", {unit_, session_, create("MicroReplaceCrosscallRequest")})
          .failure,
      "DiskArrayException 4109");
}

TEST_F(Firmware, Revisions) {
  const std::string full(64, 'r');
  for (const std::string& revision : {std::string("0A10/B"), full}) {
    quorvelSimPrepareOutput("QV_GetNewMicroRevision", revision.data(), revision.size());
    quorvelSimPrepareOutput("QV_GetNewMicroRevision2", revision.data(), revision.size());
    EXPECT_EQ(get(done("QV_GetNewMicroRevision", {}), ""), revision);
    EXPECT_EQ(get(done("QV_GetNewMicroRevision2", {text("/p")}), ""), revision);
  }
  EXPECT_EQ(lastText("QV_GetNewMicroRevision2", 0), "/p");
  quorvelSimForceResult("QV_GetNewMicroRevision", 9, 1);
  const Called refused = call("QV_GetNewMicroRevision", {});
  EXPECT_EQ(refused.failure, "DiskArrayException 9");
  EXPECT_EQ(refused.result, nullptr);
}

TEST_F(Firmware, LongPathsAreCutToTheirBuffer) {
  const std::string path(1500, 'p');
  call("QV_MicroFileConcatEx2", {unit_, session_, text(path), text(path.substr(0, 1023))});
  EXPECT_EQ(lastText("QV_MicroFileConcatEx2", 2), path.substr(0, 1023));
  EXPECT_EQ(lastText("QV_MicroFileConcatEx2", 3), path.substr(0, 1023));
  EXPECT_EQ(call("QV_MicroFileConcatEx2", {unit_, session_, text("a"), nullptr}).failure,
            "DiskArrayException 258");
}

TEST_F(Firmware, Update) {
  const jobject path = file("array-firmware", "0A10/B and more");
  const std::vector<jobject> downloading{unit_, session_, number(0), number(0), number(0)};
  const std::vector<jobject> replacing{unit_, session_, number(0)};
  EXPECT_EQ(call("QV_MicroFileConcatEx", {unit_, session_, text("/no/such/file")}).failure,
            "DiskArrayException 20801");
  EXPECT_EQ(call("QV_MicroDownload", downloading).failure, "DiskArrayException 20802");
  EXPECT_EQ(get(done("QV_MicroFileConcat", {unit_, session_, path, number(0)}), ""), "1");
  EXPECT_EQ(get(done("QV_GetNewMicroRevision", {}), ""), "0A10/B");
  done("QV_CancelMicroFileConcat", {});
  EXPECT_EQ(get(done("QV_GetMicroFileInformation", {}), "valid"), "0");

  done("QV_MicroFileConcatEx", {unit_, session_, path});
  EXPECT_EQ(get(done("QV_GetMicroFileInformation", {}), "micro"), "0A10/B");
  done("QV_MicroDownload", downloading);
  for (const char* const count : {"1", "2", "3"}) {
    EXPECT_EQ(get(done("QV_GetMicroDownloadCount", {unit_}), ""), count);
  }
  EXPECT_EQ(call("QV_MicroReplaceEx", replacing).failure, "DiskArrayException 20803");
  EXPECT_EQ(get(done("QV_GetMicroDownloadCountEx", {unit_, number(0)}), ""), "4");
  EXPECT_EQ(get(done("QV_MicroReplaceEx", replacing), "WaitCancelreq"), "1");
  EXPECT_EQ(call("QV_CompleteMicroReplace", replacing).failure, "DiskArrayException 20803");
  EXPECT_EQ(get(done("QV_MicroReplaceEx", replacing), "WaitCancelreq"), "0");
  done("QV_CompleteMicroReplace", replacing);
}

TEST_F(Firmware, UpdateOfEnclosuresAndNodes) {
  const jobject enclosures = file("enclosure-firmware", "2.05");
  done("QV_ENCMicroFileConcat", {unit_, session_, enclosures});
  EXPECT_EQ(get(done("QV_GetENCMicroInformation", {}), "read_rev.bas_rev.rev_main"), "2.05");
  EXPECT_EQ(get(done("QV_ENCMicroDownload", {unit_, session_, number(0), number(0)}), ""), "1");
  for (int poll = 0; poll < 4; ++poll) {
    done("QV_GetENCMicroDownloadCount", {unit_, session_});
  }
  done("QV_ENCMicroReplaceEx", {unit_, session_, number(0), number(0)});
  EXPECT_EQ(
      get(done("QV_GetENCMicroInformationEx", {unit_, session_}), "read_rev.bas_rev.rev_main"),
      "2.05");

  EXPECT_EQ(call("QV_PreparesNNCBiosDownload", {unit_, session_, number(4)}).failure,
            "DiskArrayException 20804");
  done("QV_PreparesNNCBiosDownload", {unit_, session_, number(1)});
  done("QV_NNCBiosFileConcat", {unit_, session_, file("bios", "3.1")});
  done("QV_NNCBiosDownload", {unit_, session_, number(1), number(0)});
  EXPECT_EQ(
      get(done("QV_GetNNCUpgradeStatusList", {unit_, session_}), "nnc_status[1].nncUpgradeStatus"),
      "1");
  for (int poll = 0; poll < 4; ++poll) {
    done("QV_GetNNCBiosDownloadCount", {});
  }
  const jobject status = done("QV_GetNNCBiosDownloadStatus", {unit_, session_, number(1)});
  EXPECT_EQ(get(status, "downloadStatus"), "4");
  EXPECT_EQ(
      get(done("QV_GetNNCBiosRevisionList", {unit_, session_}), "nnc_revision[1].nncbiosrevision"),
      "3.1");
}

}  // namespace
}  // namespace quorvelj::testing
