// The variant that looks each class and field up once a native call: what it looks up, and that it
// takes no identifier for another class's.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <type_traits>
#include <utility>

#include "arraylib/performance.h"
#include "bridge/class_map.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/native_methods.h"
#include "tests/support/simulated_library.h"

namespace quorvelj::testing {
namespace {

/// Takes the place of the functions that look up, and of those that use what was found.
class LookUps {
 public:
  explicit LookUps(JNIEnv* env) : table_(*env->functions) {
    current_ = this;
    original_ = env->functions;
    table_.FindClass = &findClass;
    table_.GetMethodID = &find<&JNINativeInterface_::GetMethodID, jmethodID>;
    table_.GetFieldID = &find<&JNINativeInterface_::GetFieldID, jfieldID>;
    table_.GetIntField = &get<&JNINativeInterface_::GetIntField, jint>;
    table_.GetObjectField = &get<&JNINativeInterface_::GetObjectField, jobject>;
    table_.SetIntField = &set<&JNINativeInterface_::SetIntField, jint>;
    table_.SetObjectField = &set<&JNINativeInterface_::SetObjectField, jobject>;
    env->functions = &table_;
  }

  /// How often each was looked up: a class by its name, a constructor and a field by identifier.
  std::map<std::string, int> classes;
  std::map<void*, int> members;
  std::set<void*> usedFields;
  std::set<void*> foundFields;

 private:
  static jclass JNICALL findClass(JNIEnv* env, const char* name) {
    ++current_->classes[name];
    return original_->FindClass(env, name);
  }
  template <auto Function, class Found>
  static Found JNICALL find(JNIEnv* env, jclass type, const char* name, const char* signature) {
    const Found found = (original_->*Function)(env, type, name, signature);
    ++current_->members[found];
    if constexpr (std::is_same_v<Found, jfieldID>) {
      current_->foundFields.insert(found);
    }
    return found;
  }
  template <auto Function, class Value>
  static Value JNICALL get(JNIEnv* env, jobject object, jfieldID field) {
    current_->usedFields.insert(field);
    return (original_->*Function)(env, object, field);
  }
  template <auto Function, class Value>
  static void JNICALL set(JNIEnv* env, jobject object, jfieldID field, Value value) {
    current_->usedFields.insert(field);
    (original_->*Function)(env, object, field, value);
  }

  static inline LookUps* current_ = nullptr;
  static inline const JNINativeInterface_* original_ = nullptr;
  JNINativeInterface_ table_;
};

/// A call holds a reference to each class of its tree: few of them have more than 32.
int mostReferencesOf(const std::string& method) {
  static const std::map<std::string, int> large{
      {"QV_GetAllInformation", 176},        {"QV_GetAllInformationLite", 175},
      {"QV_GetAllInfo_Replication", 42},    {"QV_GetAllInfo_Base", 41},
      {"QV_GetStatisticalInformation", 41}, {"QV_PerformanceOutputGraphInfo", 35}};
  const auto found = large.find(method);
  return found == large.end() ? 32 : found->second;
}

class CachedIds : public SimulatedLibrary, public ::testing::WithParamInterface<NativeMethod> {
 protected:
  /// Calls the method while the library returns zeros.
  static void invoke(MiniJvm& jvm) {
    quorvelSimPrepareOutput("*", "", 1);
    quorvelSimForceResult("*", 0, 1);
    jvm.heap.forgetResults();
    const std::vector<jvalue> arguments = jvm.newArguments(GetParam());
    const int before = jvm.heap.liveReferences();
    GetParam().invoke(jvm.env(), arguments);
    EXPECT_LE(jvm.heap.mostReferences() - before, mostReferencesOf(GetParam().name));
    EXPECT_FALSE(jvm.pending());
    EXPECT_EQ(jvm.heap.misuses(), 0);
    EXPECT_EQ(testRuntime().liveKept, 0);
  }
};

TEST_P(CachedIds, AreLookedUpOnce) {
  MiniJvm jvm;
  LookUps lookUps(jvm.env());
  invoke(jvm);
  for (const auto& [name, times] : lookUps.classes) {
    EXPECT_EQ(times, 1) << name;
  }
  for (const auto& [member, times] : lookUps.members) {
    EXPECT_EQ(times, 1) << "a constructor or a field";
  }
  EXPECT_EQ(lookUps.foundFields, lookUps.usedFields);
}

TEST_P(CachedIds, AreLookedUpAnewWithoutMemory) {
  testRuntime().refusesKept = true;
  MiniJvm jvm;
  invoke(jvm);
}

INSTANTIATE_TEST_SUITE_P(NativeMethods, CachedIds,
                         ::testing::ValuesIn(nativeMethods().begin(), nativeMethods().end()),
                         [](const auto& parameter) { return parameter.param.name; });

TEST(CachedIdsOfSubclasses, AreTheirOwn) {
  MiniJvm jvm;
  const ClassMap& map = ClassOf<Threshold>::kMap;
  NativeCall call(jvm.env());
  const jobject objects[] = {jvm.newInput("LThreshold;"), jvm.newInput("LHidingThreshold;")};
  for (int round = 0; round < 2; ++round) {
    for (jint value = 0; value < 2; ++value) {
      const jobject object = objects[value];
      const jclass type = jvm.env()->GetObjectClass(object);
      jvm.env()->SetIntField(object, jvm.env()->GetFieldID(type, "mechanical_recover", "I"), value);
      Threshold record{};
      EXPECT_EQ(read(call.env(), map, object, &record), 0);
      EXPECT_EQ(record.mechanical_recover, value);
    }
  }
  EXPECT_EQ(jvm.heap.misuses(), 0);
}

// What a reader left pending ends the building behind it, as it does where each field is asked.
TEST(CachedIdsUnderAnException, BuildNothing) {
  MiniJvm jvm;
  NativeCall call(jvm.env());
  jvm.failingCall = 1;
  jvm.env()->FindClass("Missing");
  const Threshold record{};
  EXPECT_EQ(build(call.env(), ClassOf<Threshold>::kMap, &record), nullptr);
}

}  // namespace
}  // namespace quorvelj::testing
