// Staging, downloading and replacing the firmware of the array, its enclosures and its NAS nodes.
#include "arraylib/firmware.h"

#include <cstring>

#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_CLASS(MicroFileInformation, micro, valid, booting_wait);
QUORVELJ_CLASS(MicroReplaceInformation, valid, WaitCancelreq, ReplaceCTL);
QUORVELJ_CLASS(MicroReplaceCrosscallRequest, ctl, forced_mode);
QUORVELJ_CLASS(ENCMicroInformation, qv_type, device_type, micro_type, read_rev);
QUORVELJ_CLASS(NNCBiosRevision, nncbiosrevision);
QUORVELJ_CLASS(NNCBiosRevisionList, mount, nnc_revision);
QUORVELJ_CLASS(NNCBiosDownloadStatus, downloadStatus, errorInfo);
QUORVELJ_CLASS(NNCUpgradeStatus, nncUpgradeStatus);
QUORVELJ_CLASS(NNCUpgradeStatusList, nnc_status);

NATIVE_METHOD(jint, MicroFileConcat, jstring unit, jobject session, jstring path, jint option) {
  return value(env, QV_MicroFileConcat, unit, session, path, option);
}

NATIVE_METHOD(void, MicroFileConcat2, jstring unit, jobject session, jstring path) {
  update(env, QV_MicroFileConcat2, unit, session, path);
}

NATIVE_METHOD(void, MicroFileConcatEx, jstring unit, jobject session, jstring path) {
  update(env, QV_MicroFileConcatEx, unit, session, path);
}

NATIVE_METHOD(void, MicroFileConcatEx2, jstring unit, jobject session, jstring first,
              jstring second) {
  update(env, QV_MicroFileConcatEx2, unit, session, first, second);
}

NATIVE_METHOD(void, CancelMicroFileConcat) { update(env, QV_CancelMicroFileConcat); }

NATIVE_METHOD(void, CancelMicroFileConcat2, jstring path) {
  update(env, QV_CancelMicroFileConcat2, path);
}

NATIVE_METHOD(jint, GetMicroDownloadCount, jstring unit) {
  return value(env, QV_GetMicroDownloadCount, unit);
}

NATIVE_METHOD(jint, GetMicroDownloadCountEx, jstring unit, jint option) {
  return value(env, QV_GetMicroDownloadCountEx, unit, option);
}

NATIVE_METHOD(jint, GetMicroDownloadCountEx2, jstring unit, jint option, jstring path) {
  return value(env, QV_GetMicroDownloadCountEx2, unit, option, path);
}

NATIVE_METHOD(void, MicroDownload, jstring unit, jobject session, jint option1, jint option2,
              jint option3) {
  update(env, QV_MicroDownload, unit, session, option1, option2, option3);
}

NATIVE_METHOD(void, MicroDownloadEx, jstring unit, jobject session, jint option1, jint option2,
              jint option3, jint option4) {
  update(env, QV_MicroDownloadEx, unit, session, option1, option2, option3, option4);
}

NATIVE_METHOD(void, MicroDownloadEx2, jstring unit, jobject session, jint option1, jint option2,
              jint option3, jint option4, jstring path) {
  update(env, QV_MicroDownloadEx2, unit, session, option1, option2, option3, option4, path);
}

NATIVE_METHOD(void, MicroReplace, jstring unit, jobject session, jint option) {
  update(env, QV_MicroReplace, unit, session, option);
}

NATIVE_METHOD(void, CompleteMicroReplace, jstring unit, jobject session, jint option) {
  update(env, QV_CompleteMicroReplace, unit, session, option);
}

NATIVE_METHOD(jobject, GetMicroFileInformation) { return query(env, QV_GetMicroFileInformation); }

NATIVE_METHOD(void, ENCMicroFileConcat, jstring unit, jobject session, jstring path) {
  update(env, QV_ENCMicroFileConcat, unit, session, path);
}

NATIVE_METHOD(void, ENCMicroFileConcatEx, jstring unit, jobject session, jstring path,
              jint option) {
  update(env, QV_ENCMicroFileConcatEx, unit, session, path, option);
}

NATIVE_METHOD(void, CancelENCMicroFileConcat) { update(env, QV_CancelENCMicroFileConcat); }

NATIVE_METHOD(jint, ENCMicroDownload, jstring unit, jobject session, jint option1, jint option2) {
  return value(env, QV_ENCMicroDownload, unit, session, option1, option2);
}

NATIVE_METHOD(jint, GetENCMicroDownloadCount, jstring unit, jobject session) {
  return value(env, QV_GetENCMicroDownloadCount, unit, session);
}

NATIVE_METHOD(void, ENCMicroReplace, jstring unit, jobject session, jint option) {
  update(env, QV_ENCMicroReplace, unit, session, option);
}

NATIVE_METHOD(jobject, GetENCMicroInformation) { return query(env, QV_GetENCMicroInformation); }

NATIVE_METHOD(jobject, GetENCMicroInformationEx, jstring unit, jobject session) {
  return query(env, QV_GetENCMicroInformationEx, unit, session);
}

NATIVE_METHOD(jobject, GetLocalNNCBiosRevision) { return query(env, QV_GetLocalNNCBiosRevision); }

NATIVE_METHOD(jobject, GetNNCBiosRevisionList, jstring unit, jobject session) {
  return query(env, QV_GetNNCBiosRevisionList, unit, session);
}

NATIVE_METHOD(void, PreparesNNCBiosDownload, jstring unit, jobject session, jint option) {
  update(env, QV_PreparesNNCBiosDownload, unit, session, option);
}

NATIVE_METHOD(void, NNCBiosFileConcat, jstring unit, jobject session, jstring path) {
  update(env, QV_NNCBiosFileConcat, unit, session, path);
}

NATIVE_METHOD(void, CancelNNCBiosFileConcat) { update(env, QV_CancelNNCBiosFileConcat); }

NATIVE_METHOD(void, NNCBiosDownload, jstring unit, jobject session, jint option1, jint option2) {
  update(env, QV_NNCBiosDownload, unit, session, option1, option2);
}

NATIVE_METHOD(jint, GetNNCBiosDownloadCount) { return value(env, QV_GetNNCBiosDownloadCount); }

NATIVE_METHOD(jobject, GetNNCBiosDownloadStatus, jstring unit, jobject session, jint option) {
  return query(env, QV_GetNNCBiosDownloadStatus, unit, session, option);
}

NATIVE_METHOD(jobject, GetNNCUpgradeStatusList, jstring unit, jobject session) {
  return query(env, QV_GetNNCUpgradeStatusList, unit, session);
}

DEPARTS(MicroReplaceEx, "the library's result 4109 is a success, too");
NATIVE_METHOD(jobject, MicroReplaceEx, jstring unit, jobject session, jint option) {
  constexpr int kAlsoSuccess = 4109;

  LibraryCall library(env, QV_MicroReplaceEx, unit, session, option);
  if (!library.begin()) {
    return nullptr;
  }
  auto* const information = library.output();
  if (information == nullptr) {
    return nullptr;
  }
  const int result = library.call(information);
  return finishQuery(env, result == kAlsoSuccess ? 0 : result, information);
}

DEPARTS(MicroReplaceCrosscall, "both inputs are allocated before the first is read");
NATIVE_METHOD(jobject, MicroReplaceCrosscall, jstring unit, jobject session, jobject request) {
  LibraryCall library(env, QV_MicroReplaceCrosscall, unit, session, request);
  if (!library.enter()) {
    return nullptr;
  }
  if (!library.allocateInTurn()) {
    throwArrayException(env, kOutOfMemory);
    return nullptr;
  }
  library.readInputs();
  auto* const information = library.output();
  return information == nullptr ? nullptr
                                : finishQuery(env, library.call(information), information);
}

namespace {

/// An int that the library gets as a record of its own.
struct IntRecord {
  jint value;

  class Argument {
   public:
    explicit Argument(IntRecord record) : value_(record.value) {}
    bool accept(Env) { return true; }
    bool allocate() {
      record_ = quorvelj::allocate<std::int32_t>();
      return record_ != nullptr;
    }
    int read(Env) {
      *record_ = value_;
      return kOk;
    }
    void release() { releaseRecord(record_); }
    const std::int32_t* get() { return record_; }

   private:
    jint value_;
    std::int32_t* record_ = nullptr;
  };
};

}  // namespace

NATIVE_METHOD(void, ENCMicroReplaceEx, jstring unit, jobject session, jint option, jint record) {
  update(env, QV_ENCMicroReplaceEx, unit, session, option, IntRecord{record});
}

namespace {

constexpr char kRevisionDeparts[] =
    "the result is a text, which the library writes into a buffer on the stack";

template <class Function, class... Java>
jstring newRevision(Env env, Function function, Java... path) {
  LibraryCall library(env, function, path...);
  if (!library.begin()) {
    return nullptr;
  }
  // How much the library writes is not known: the spare bytes keep a longer text from the stack.
  struct {
    MicroRevisionText text;
    std::byte spare[1024];
  } revision{};
  const int result = library.call(&revision.text);
  if (result != 0) {
    throwArrayException(env, result);
    return nullptr;
  }
  // One byte more: a revision that fills its buffer has no NUL of its own.
  char text[sizeof revision.text + 1]{};
  std::memcpy(text, revision.text, sizeof revision.text);
  const jstring string = env->NewStringUTF(text);
  if (string == nullptr) {
    throwArrayException(env, kFailed);
    return nullptr;
  }
  flushOutput();
  return string;
}

}  // namespace

DEPARTS(GetNewMicroRevision, kRevisionDeparts);
NATIVE_METHOD(jstring, GetNewMicroRevision) { return newRevision(env, QV_GetNewMicroRevision); }

DEPARTS(GetNewMicroRevision2, kRevisionDeparts);
NATIVE_METHOD(jstring, GetNewMicroRevision2, jstring path) {
  return newRevision(env, QV_GetNewMicroRevision2, path);
}
