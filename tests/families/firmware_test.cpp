// Firmware.
#include <fstream>

#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using Firmware = RegisteredUnit;

TEST_F(Firmware, Arguments) {
  expectPassed("QV_CancelMicroFileConcat", "");
  expectPassed("QV_CancelENCMicroFileConcat", "");
  expectPassed("QV_CancelNNCBiosFileConcat", "");
  expectPassed("QV_CancelMicroFileConcat2", "p");
  expectPassed("QV_MicroFileConcat2", "usp");
  expectPassed("QV_MicroFileConcatEx", "usp");
  expectPassed("QV_ENCMicroFileConcat", "usp");
  expectPassed("QV_NNCBiosFileConcat", "usp");
  expectPassed("QV_MicroFileConcatEx2", "uspp");
  expectPassed("QV_ENCMicroFileConcatEx", "uspi");
  expectPassed("QV_MicroReplace", "usi");
  expectPassed("QV_CompleteMicroReplace", "usi");
  expectPassed("QV_ENCMicroReplace", "usi");
  expectPassed("QV_PreparesNNCBiosDownload", "usi");
  expectPassed("QV_ENCMicroReplaceEx", "usii");
  expectPassed("QV_NNCBiosDownload", "usii");
  expectPassed("QV_MicroDownload", "usiii");
  expectPassed("QV_MicroDownloadEx", "usiiii");
  expectPassed("QV_MicroDownloadEx2", "usiiiip");
  expectPassed("QV_MicroFileConcat", "uspi", true);
  expectPassed("QV_GetMicroDownloadCount", "u", true);
  expectPassed("QV_GetMicroDownloadCountEx", "ui", true);
  expectPassed("QV_GetMicroDownloadCountEx2", "uip", true);
  expectPassed("QV_ENCMicroDownload", "usii", true);
  expectPassed("QV_GetENCMicroDownloadCount", "us", true);
  expectPassed("QV_GetNNCBiosDownloadCount", "", true);

  const std::string path(1500, 'p');
  run("QV_MicroFileConcatEx2", path, path.substr(0, 1023));
  EXPECT_EQ(lastText("QV_MicroFileConcatEx2", 2), path.substr(0, 1023));
  EXPECT_EQ(lastText("QV_MicroFileConcatEx2", 3), path.substr(0, 1023));
}

TEST_F(Firmware, Records) {
  expectBuilt("QV_GetMicroFileInformation", {}, 20,
              {textAt(0, 12, "micro"), int32At(12, "valid"), int32At(16, "booting_wait")});
  const Members replacement = int32sAt(0, "valid WaitCancelreq ReplaceCTL");
  expectFromUnit("QV_MicroReplaceEx", 12, replacement, {-1});
  expectBuilt("QV_MicroReplaceCrosscall", {unit_, session_, create("MicroReplaceCrosscallRequest")},
              12, replacement);
  expectRequest("QV_MicroReplaceCrosscall", "MicroReplaceCrosscallRequest", 8,
                int32sAt(0, "ctl forced_mode"));

  const Members revision{int32At(0, "valid_index"), textAt(4, 7, "rev_main"),
                         textAt(11, 3, "rev_boot"), textAt(14, 3, "rev_ectl"),
                         textAt(17, 7, "rev_rtr"),  textAt(24, 7, "rev_ses"),
                         textAt(31, 9, "rev_sas")};
  const Members enclosure =
      int32sAt(0, "qv_type device_type micro_type") +
      at({{12, "read_rev.bas_rev."}, {52, "read_rev.ext_rev."}, {92, "read_rev.ext_rev_plus[0]."}},
         revision);
  expectBuilt("QV_GetENCMicroInformation", {}, 132, enclosure);
  expectFromUnit("QV_GetENCMicroInformationEx", 132, enclosure);

  expectBuilt("QV_GetLocalNNCBiosRevision", {}, 9, {textAt(0, 9, "nncbiosrevision")});
  expectFromUnit("QV_GetNNCBiosRevisionList", 52,
                 {int32At(0, "mount[0]"), int32At(12, "mount[3]"),
                  textAt(16, 9, "nnc_revision[0].nncbiosrevision"),
                  textAt(43, 9, "nnc_revision[3].nncbiosrevision")});
  expectFromUnit("QV_GetNNCBiosDownloadStatus", 8, int32sAt(0, "downloadStatus errorInfo"), {-1});
  expectFromUnit("QV_GetNNCUpgradeStatusList", 16,
                 {int32At(0, "nnc_status[0].nncUpgradeStatus"),
                  int32At(12, "nnc_status[3].nncUpgradeStatus")});
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
  EXPECT_EQ(run("QV_MicroFileConcatEx", path), "");
  EXPECT_EQ(get(call("QV_GetMicroFileInformation", {}).result, "micro"), "0A10/B");
  EXPECT_EQ(run("QV_ENCMicroFileConcat", path), "");
  EXPECT_EQ(get(call("QV_GetENCMicroInformation", {}).result, "read_rev.bas_rev.rev_main"),
            "0A10/B");
}

}  // namespace
}  // namespace quorvelj::testing
