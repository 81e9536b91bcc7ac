#include "bridge/native_frame.h"

namespace quorvelj {
namespace {

/// What an object and an array have in common at the end of a query.
template <class Build>
auto finishWith(Env env, int result, void* record, Build buildResult) {
  using Object = decltype(buildResult());
  if (result != 0) {
    releaseRecord(record);
    throwArrayException(env, result);
    return Object{};
  }
  const Object built = buildResult();
  releaseRecord(record);
  if (built == nullptr) {
    throwArrayException(env, kFailed);
  } else {
    flushOutput();
  }
  return built;
}

}  // namespace

bool copyRequiredText(Env env, jstring text, char* buffer, std::size_t length) {
  if (text == nullptr) {
    throwArrayException(env, kMissingArgument);
    return false;
  }
  copyJavaStringToBuffer(env, text, buffer, length);
  return true;
}

jobject finishQuery(Env env, int result, const ClassMap& map, void* record) {
  return finishWith(env, result, record, [=, &map] { return build(env, map, record); });
}

jobjectArray finishArrayQuery(Env env, int result, const ClassMap& map, void* records, jsize length,
                              std::size_t recordBytes) {
  return finishWith(env, result, records,
                    [=, &map] { return buildArray(env, map, records, length, recordBytes); });
}

bool storeBuilt(Env env, jobjectArray array, jsize index, const ClassMap& map, const void* record) {
  const jobject element = build(env, map, record);
  if (element == nullptr) {
    return false;
  }
  env->SetObjectArrayElement(array, index, element);
  deleteLocalRef(env, element);
  return true;
}

void fillPartialArray(Env env, jobjectArray array, const ClassMap& map, const void* records,
                      jsize length, std::size_t recordBytes) {
  const auto* record = static_cast<const std::byte*>(records);
  for (jsize index = 0; index < length && storeBuilt(env, array, index, map, record); ++index) {
    record += recordBytes;
  }
}

jobjectArray finishPartialArrayQuery(Env env, int result, const ClassMap& map, void* records,
                                     jsize length, std::size_t recordBytes) {
  if (result != 0) {
    releaseRecord(records);
    throwArrayException(env, result);
    return nullptr;
  }
  const jobjectArray array = newObjectArrayByName(env, map.className, length);
  if (array != nullptr) {
    fillPartialArray(env, array, map, records, length, recordBytes);
  }
  releaseRecord(records);
  if (array != nullptr) {
    flushOutput();
  }
  return array;
}

void finishUpdate(Env env, int result) {
  if (result != 0) {
    throwArrayException(env, result);
    return;
  }
  flushOutput();
}

}  // namespace quorvelj
