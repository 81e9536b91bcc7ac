// Firmware.
#include <fstream>

#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using Firmware = RegisteredUnit;

TEST_F(Firmware, Arguments) {
  expectPassed(
      "QV_CancelMicroFileConcat; QV_CancelENCMicroFileConcat; QV_CancelNNCBiosFileConcat; "
      "QV_CancelMicroFileConcat2 p; QV_MicroFileConcat2 usp; QV_MicroFileConcatEx usp; "
      "QV_ENCMicroFileConcat usp; QV_NNCBiosFileConcat usp; QV_MicroFileConcatEx2 uspp; "
      "QV_ENCMicroFileConcatEx uspi; QV_MicroReplace usi; QV_CompleteMicroReplace usi; "
      "QV_ENCMicroReplace usi; QV_PreparesNNCBiosDownload usi; QV_ENCMicroReplaceEx usii; "
      "QV_NNCBiosDownload usii; QV_MicroDownload usiii; QV_MicroDownloadEx usiiii; "
      "QV_MicroDownloadEx2 usiiiip");
  expectPassedAndReturned(
      "QV_MicroFileConcat uspi; QV_GetMicroDownloadCount u; QV_GetMicroDownloadCountEx ui; "
      "QV_GetMicroDownloadCountEx2 uip; QV_ENCMicroDownload usii; QV_GetENCMicroDownloadCount us; "
      "QV_GetNNCBiosDownloadCount");
}

TEST_F(Firmware, Records) {
  expectBuilt("QV_GetMicroFileInformation", {}, 20, "0:text12 micro; 12:int32 valid booting_wait");
  const Members replacement = "0:int32 valid WaitCancelreq ReplaceCTL";
  expectFromUnit("QV_MicroReplaceEx", 12, replacement, {-1});
  expectBuilt("QV_MicroReplaceCrosscall", {unit_, session_, create("MicroReplaceCrosscallRequest")},
              12, replacement);
  expectRequest("QV_MicroReplaceCrosscall", "MicroReplaceCrosscallRequest", 8,
                "0:int32 ctl forced_mode");

  const Members enclosure =
      "0:int32 qv_type device_type micro_type" +
      at("12:read_rev.bas_rev 52:read_rev.ext_rev 92:read_rev.ext_rev_plus[0]",
         "0:int32 valid_index; 4:text7 rev_main; 11:text3 rev_boot rev_ectl; 17:text7 rev_rtr "
         "rev_ses; 31:text9 rev_sas");
  expectBuilt("QV_GetENCMicroInformation", {}, 132, enclosure);
  expectFromUnit("QV_GetENCMicroInformationEx", 132, enclosure);

  expectBuilt("QV_GetLocalNNCBiosRevision", {}, 9, "0:text9 nncbiosrevision");
  expectFromUnit("QV_GetNNCBiosRevisionList", 52,
                 "0:int32 mount[0]; 12:int32 mount[3]; 16:text9 nnc_revision[0].nncbiosrevision; "
                 "43:text9 nnc_revision[3].nncbiosrevision");
  expectFromUnit("QV_GetNNCBiosDownloadStatus", 8, "0:int32 downloadStatus errorInfo", {-1});
  expectFromUnit("QV_GetNNCUpgradeStatusList", 16,
                 "0:int32 nnc_status[0].nncUpgradeStatus; 12:int32 nnc_status[3].nncUpgradeStatus");
}

TEST_F(Firmware, OneMethodTakesAReplacementInProgressForASuccess) {
  // A forced failure leaves the output as it was allocated; the object is built from it.
  quorvelSimForceResult("QV_MicroReplaceEx", 4109, 1);
  EXPECT_NE(information("QV_MicroReplaceEx", 0), nullptr);
  quorvelSimForceResult("QV_MicroReplaceEx", 4110, 1);
  EXPECT_EQ(run("QV_MicroReplaceEx", 0), "DiskArrayException 4110");
  quorvelSimForceResult("QV_MicroReplaceCrosscall", 4109, 1);
  EXPECT_EQ(run("QV_MicroReplaceCrosscall", create("MicroReplaceCrosscallRequest")),
            "DiskArrayException 4109");
}

TEST_F(Firmware, Revisions) {
  for (const std::string& revision : {std::string("0A10/B"), std::string(64, 'r')}) {
    quorvelSimPrepareOutput("*", revision.data(), revision.size());
    EXPECT_EQ(get(call("QV_GetNewMicroRevision", {}).result, ""), revision);
    EXPECT_EQ(get(call("QV_GetNewMicroRevision2", {text("/p")}).result, ""), revision);
  }
  EXPECT_EQ(lastText("QV_GetNewMicroRevision2", 0), "/p");
}

TEST_F(Firmware, FilesAreConcatenated) {
  const std::string path = temporary("firmware");
  std::ofstream(path) << "0A10/B and more";
  EXPECT_EQ(run("QV_MicroFileConcatEx", "/no/such/file"), "DiskArrayException 20801");
  update("QV_MicroFileConcatEx", path);
  EXPECT_EQ(get(call("QV_GetMicroFileInformation", {}).result, "micro"), "0A10/B");
  update("QV_ENCMicroFileConcat", path);
  EXPECT_EQ(get(call("QV_GetENCMicroInformation", {}).result, "read_rev.bas_rev.rev_main"),
            "0A10/B");
}

TEST_F(Firmware, ARevisionThatIsTooLongIsCut) {
  const std::string path = temporary("firmware");
  std::ofstream(path) << std::string(20, 'r');
  update("QV_MicroFileConcatEx", path);
  EXPECT_EQ(get(call("QV_GetMicroFileInformation", {}).result, "micro"), std::string(11, 'r'));
}

}  // namespace
}  // namespace quorvelj::testing
