// What walking a class map costs against the same JNI calls written out in one function.
#include <cstdio>

#include "benchmarks/comparison.h"
#include "bridge/class_map.h"

struct TwentyFourInts {
  std::int32_t field00, field01, field02, field03, field04, field05, field06, field07;
  std::int32_t field08, field09, field10, field11, field12, field13, field14, field15;
  std::int32_t field16, field17, field18, field19, field20, field21, field22, field23;
};
QUORVEL_RECORD(TwentyFourInts, 96);
QUORVELJ_CLASS(TwentyFourInts, field00, field01, field02, field03, field04, field05, field06,
               field07, field08, field09, field10, field11, field12, field13, field14, field15,
               field16, field17, field18, field19, field20, field21, field22, field23);

namespace {

// clang-format off
#define ALL_FIELDS(each) \
  each(field00) each(field01) each(field02) each(field03) each(field04) each(field05) \
  each(field06) each(field07) each(field08) each(field09) each(field10) each(field11) \
  each(field12) each(field13) each(field14) each(field15) each(field16) each(field17) \
  each(field18) each(field19) each(field20) each(field21) each(field22) each(field23)
// clang-format on

jobject buildByHand(JNIEnv* env, const TwentyFourInts& record) {
  std::fflush(stdout);
  const jclass created = env->FindClass("tessaly/str/diskarray/TwentyFourInts");
  if (created == nullptr) {
    return nullptr;
  }
  const jmethodID constructor = env->GetMethodID(created, "<init>", "()V");
  if (constructor == nullptr) {
    return nullptr;
  }
  const jobject object = env->NewObject(created, constructor);
  if (object == nullptr) {
    return nullptr;
  }
  env->DeleteLocalRef(created);
  jclass type = nullptr;
  jfieldID field = nullptr;
#define SET(name)                               \
  type = env->GetObjectClass(object);           \
  if (type == nullptr) {                        \
    return nullptr;                             \
  }                                             \
  field = env->GetFieldID(type, #name, "I");    \
  if (field == nullptr) {                       \
    return nullptr;                             \
  }                                             \
  env->SetIntField(object, field, record.name); \
  if (env->ExceptionOccurred() != nullptr) {    \
    return nullptr;                             \
  }                                             \
  env->DeleteLocalRef(type);
  ALL_FIELDS(SET)
  return object;
}

int readByHand(JNIEnv* env, jobject object, TwentyFourInts& record) {
  jclass type = nullptr;
  jfieldID field = nullptr;
#define GET(name)                                \
  type = env->GetObjectClass(object);            \
  if (type == nullptr) {                         \
    return -1;                                   \
  }                                              \
  field = env->GetFieldID(type, #name, "I");     \
  if (field == nullptr) {                        \
    return -1;                                   \
  }                                              \
  record.name = env->GetIntField(object, field); \
  env->DeleteLocalRef(type);                     \
  if (env->ExceptionOccurred() != nullptr) {     \
    return -1;                                   \
  }
  ALL_FIELDS(GET)
  return 0;
}

/// The same calls in a loop over the names: what is left of the map's cost is the loop's.
int readInLoop(JNIEnv* env, jobject object, TwentyFourInts& record) {
#define NAME(name) #name,
  static constexpr const char* kNames[] = {ALL_FIELDS(NAME)};
  std::int32_t* value = &record.field00;
  for (const char* const name : kNames) {
    const jclass type = env->GetObjectClass(object);
    if (type == nullptr) {
      return -1;
    }
    const jfieldID field = env->GetFieldID(type, name, "I");
    if (field == nullptr) {
      return -1;
    }
    *value++ = env->GetIntField(object, field);
    env->DeleteLocalRef(type);
    if (env->ExceptionOccurred() != nullptr) {
      return -1;
    }
  }
  return 0;
}

const quorvelj::ClassMap& map() { return quorvelj::ClassOf<TwentyFourInts>::kMap; }

void BM_Build24Ints(benchmark::State& state) {
  JNIEnv* const env = jvm();
  const TwentyFourInts record{};
  compare(
      state, [&] { release(env, quorvelj::build(env, map(), &record)); },
      [&] { release(env, buildByHand(env, record)); });
}

void compareRead(benchmark::State& state, int (*byHand)(JNIEnv*, jobject, TwentyFourInts&)) {
  JNIEnv* const env = jvm();
  const jobject object = buildByHand(env, {});
  TwentyFourInts record{};
  compare(
      state, [&] { benchmark::DoNotOptimize(quorvelj::read(env, map(), object, &record)); },
      [&] { benchmark::DoNotOptimize(byHand(env, object, record)); });
  env->DeleteLocalRef(object);
}

void BM_Read24Ints(benchmark::State& state) { compareRead(state, readByHand); }
void BM_Read24IntsAgainstLoop(benchmark::State& state) { compareRead(state, readInLoop); }

BENCHMARK(BM_Build24Ints);
BENCHMARK(BM_Read24Ints);
BENCHMARK(BM_Read24IntsAgainstLoop);

}  // namespace
