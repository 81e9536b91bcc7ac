// What only a real Java virtual machine shows of the toolkit and the native methods.
#include <gtest/gtest.h>
#include <malloc.h>
#include <stdio_ext.h>

#include <cstdio>
#include <cstring>

#include "bridge/jni_toolkit.h"
#include "simulator/control.h"
#include "tests/support/caller.h"
#include "tests/support/callers_jvm.h"
#include "tests/support/native_methods.h"

namespace quorvelj::testing {
namespace {

class HotSpot : public ::testing::Test {
 protected:
  HotSpot() { javaEnv()->PushLocalFrame(64); }
  ~HotSpot() override {
    javaEnv()->ExceptionClear();
    javaEnv()->PopLocalFrame(nullptr);
  }

  /// Calls a native method past Java's check of its argument's class.
  void callUnchecked(const char* method, const char* signature, jobject argument) {
    const jclass type = env_->FindClass("tessaly/str/diskarray/DiskArrayUtilityJNI");
    const jobject array = env_->NewObject(type, env_->GetMethodID(type, "<init>", "()V"));
    env_->CallVoidMethod(array, env_->GetMethodID(type, method, signature), argument);
  }

  JNIEnv* env_ = javaEnv();
};

TEST_F(HotSpot, MissingClassIsReportedByName) {
  EXPECT_EQ(newObjectByName(env_, "tessaly/str/diskarray/Nothing"), nullptr);
  EXPECT_EQ(takeException()->shown(), "ClassNotFoundException tessaly/str/diskarray/Nothing");
  // A later exception replaces a pending one.
  EXPECT_EQ(newObjectByName(env_, "tessaly/str/diskarray/Nothing"), nullptr);
  throwArrayException(env_, 2817);
  EXPECT_EQ(takeException()->message,
            "disk array error 2817: the result could not be built, since a class is not as "
            "expected");
}

TEST_F(HotSpot, ObjectOfAClassWithoutTheFields) {
  quorvelSimForceResult("QV_UnitAdd", 0, 2);
  const char* const signature = "(Ltessaly/str/diskarray/QVUnitParam;)V";
  const int before = quorvelSimCallCount("QV_UnitAdd");
  callUnchecked("QV_UnitAdd", signature, create("AccountIdentifier"));
  EXPECT_EQ(takeException()->shown(),
            "NoSuchFieldError tessaly.str.diskarray.AccountIdentifier.unit_name "
            "Ljava/lang/String;");
  // The class has the field with another type.
  callUnchecked("QV_UnitAdd", signature, env_->AllocObject(env_->FindClass("MistypedUnit")));
  EXPECT_EQ(takeException()->shown(), "NoSuchFieldError MistypedUnit.unit_name Ljava/lang/String;");
  EXPECT_EQ(quorvelSimCallCount("QV_UnitAdd"), before + 2);
}

TEST_F(HotSpot, EveryMethodDeclaresItsException) {
  const jclass type = env_->FindClass("tessaly/str/diskarray/DiskArrayUtilityJNI");
  const jclass declared = env_->FindClass("tessaly/str/diskarray/DiskArrayException");
  const jmethodID exceptionTypes = env_->GetMethodID(env_->FindClass("java/lang/reflect/Method"),
                                                     "getExceptionTypes", "()[Ljava/lang/Class;");
  for (const NativeMethod& method : nativeMethods()) {
    env_->PushLocalFrame(8);
    const jobject reflected = env_->ToReflectedMethod(
        type, env_->GetMethodID(type, method.name, method.signature), JNI_FALSE);
    const auto types = static_cast<jobjectArray>(env_->CallObjectMethod(reflected, exceptionTypes));
    EXPECT_TRUE(env_->GetArrayLength(types) == 1 &&
                env_->IsSameObject(env_->GetObjectArrayElement(types, 0), declared) == JNI_TRUE)
        << method.name;
    env_->PopLocalFrame(nullptr);
  }
}

TEST_F(HotSpot, ElementsBehindTheUnitsAreEmpty) {
  const struct Perturbed {
    Perturbed() { mallopt(M_PERTURB, 0x5A); }  // fills what malloc returns
    ~Perturbed() { mallopt(M_PERTURB, 0); }
  } perturbed;
  quorvelSimReset();
  const jobject table = call("QV_GetUnitParamTable", {number(3)}).result;
  EXPECT_EQ(get(table, "[2].unit_name"), "");
  EXPECT_EQ(get(table, "[2].ssl_used"), "0");
}

TEST_F(HotSpot, StandardOutputIsFlushed) {
  std::fputc(' ', stdout);
  ASSERT_GT(__fpending(stdout), 0U);
  EXPECT_EQ(call("QV_CancelMicroFileConcat", {}).failure, "");
  EXPECT_EQ(__fpending(stdout), 0U);
}

TEST_F(HotSpot, ShiftJisIsDecoded) {
  const jobject identifier = create("AccountIdentifier");
  EXPECT_EQ(setSjisStringField(env_, identifier, "user_id", "\x83\x65\x83\x58\x83\x67\0...", 10),
            0);
  EXPECT_EQ(get(identifier, "user_id"), "テスト");
  EXPECT_EQ(setSjisStringField(env_, identifier, "user_id", "abc", 3), 2817);
  EXPECT_EQ(takeException()->className, "java/lang/StringIndexOutOfBoundsException");
}

TEST_F(HotSpot, TextCutInsideACharacter) {
  const jobject identifier = create("AccountIdentifier");
  EXPECT_EQ(setStringField(env_, identifier, "user_id", "ab\xC3"), 0);
  EXPECT_EQ(get(identifier, "user_id").substr(0, 2), "ab");
}

}  // namespace
}  // namespace quorvelj::testing
