// What each toolkit operation returns, throws and copies.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <map>

#include "bridge/jni_toolkit.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/test_runtime.h"

namespace quorvelj::testing {
namespace {

class Toolkit : public ::testing::Test {
 protected:
  Toolkit() { resetTestRuntime(); }
  ~Toolkit() override {
    EXPECT_EQ(jvm_.heap.misuses(), 0) << "JNI was called with what it forbids";
  }

  std::string thrownBy(int code) {
    throwArrayException(env_, code);
    const auto pending = jvm_.pending();
    return pending ? pending->className + ':' + pending->message : "nothing";
  }

  MiniJvm jvm_;
  JNIEnv* env_ = jvm_.env();
  jobject object_ = jvm_.newInput();
};

TEST_F(Toolkit, ThrowsByCode) {
  EXPECT_EQ(thrownBy(256), "nothing");
  EXPECT_EQ(thrownBy(65535), "java/lang/OutOfMemoryError:");
  for (const int code : {-1, 258, 2817}) {
    EXPECT_EQ(thrownBy(code), "tessaly/str/diskarray/DiskArrayException:");
    EXPECT_EQ(jvm_.pending()->code, code);
  }
}

TEST_F(Toolkit, MissingClassesAreNamed) {
  jvm_.heap.remove("tessaly/str/diskarray/DiskArrayException");
  EXPECT_EQ(thrownBy(7),
            "java/lang/ClassNotFoundException:tessaly/str/diskarray/DiskArrayException");
  jvm_.heap.remove("java/lang/ClassNotFoundException");
  EXPECT_EQ(thrownBy(7), "java/lang/NoClassDefFoundError:java/lang/ClassNotFoundException");
  EXPECT_EQ(newObjectByName(env_, "tessaly/str/diskarray/DiskArrayException"), nullptr);
  EXPECT_EQ(newObjectArrayByName(env_, "tessaly/str/diskarray/DiskArrayException", 2), nullptr);
}

TEST_F(Toolkit, MissingConstructorLeavesTheJvmsError) {
  jvm_.heap.remove("<init>");
  EXPECT_EQ(thrownBy(7), "java/lang/NoSuchMethodError:<init>");
  EXPECT_EQ(newInteger(env_, 7), nullptr);
}

TEST_F(Toolkit, MissingFieldsAndObjectsGiveTheSentinels) {
  jvm_.heap.remove("gone");
  std::array<char, 4> text{'k', 'e', 'p', 't'};
  std::int32_t number = 77;
  for (const jobject object : {object_, jobject{}}) {
    EXPECT_EQ(getIntField(env_, object, "gone"), -1);
    EXPECT_EQ(getScaledShortField(env_, object, "gone"), -1.0);
    EXPECT_EQ(getObjectField(env_, object, "gone", "[I"), nullptr);
    EXPECT_EQ(setIntField(env_, object, "gone", 1), 2817);
    EXPECT_EQ(setStringField(env_, object, "gone", "x"), 2817);
    EXPECT_EQ(setSjisStringField(env_, object, "gone", "x", 2), 2817);
    EXPECT_EQ(getStringField(env_, object, "gone", text.data(), 4), 2817);
    EXPECT_EQ(getIntArrayField(env_, object, "gone", &number, 1), 2817);
    EXPECT_EQ(setIntArrayField(env_, object, "gone", &number, 1), 2817);
    jvm_.clearPending();
    EXPECT_EQ(setStringArrayField(env_, object, "gone", "", 1, 1), 0);
  }
  EXPECT_EQ(number, 77);
  EXPECT_EQ(std::string(text.data(), 4), "kept");
}

TEST_F(Toolkit, NewIntegerAndScaledShorts) {
  EXPECT_EQ(jvm_.intOf(newInteger(env_, 77), "code"), 77);
  const std::map<double, jint> stored{{12.345, 1234}, {-0.019, -1}, {327.68, -32768},
                                      {655.37, 1},    {1e300, 0},   {-1e300, 0}};
  for (const auto& [value, expected] : stored) {
    EXPECT_EQ(setScaledShortField(env_, object_, "rate", value), 0);
    EXPECT_EQ(jvm_.intOf(object_, "rate"), expected) << value;
  }
  setScaledShortField(env_, object_, "rate", 12.345);
  EXPECT_EQ(getScaledShortField(env_, object_, "rate"), 12.34);

  const std::array<double, 2> given{1.5, -2.999};
  std::array<double, 2> read{};
  EXPECT_EQ(setScaledShortArrayField(env_, object_, "rates", given.data(), 2), 0);
  EXPECT_EQ(getScaledShortArrayField(env_, object_, "rates", read.data(), 2), 0);
  EXPECT_EQ(read, (std::array<double, 2>{1.5, -2.99}));
  std::array<double, 3> more{};
  EXPECT_EQ(getScaledShortArrayField(env_, object_, "rates", more.data(), 3), 2817);
  for (testRuntime().refusedAllocation = 4; testRuntime().allocations < 4;) {
    EXPECT_EQ(setScaledShortArrayField(env_, object_, "rates", given.data(), 2), 2817);
  }
  EXPECT_EQ(testRuntime().liveRecords, 0);
}

TEST_F(Toolkit, ShiftJisTextEndsAtItsNul) {
  const char bytes[16] = "ABC";
  const int references = jvm_.heap.liveReferences();
  EXPECT_EQ(setSjisStringField(env_, object_, "name", bytes, 16), 0);
  EXPECT_EQ(jvm_.heap.liveReferences(), references);
  EXPECT_EQ(jvm_.textOf(object_, "name"), "ABC");
  EXPECT_EQ(setSjisStringField(env_, object_, "name", bytes, 3), 2817);
  EXPECT_EQ(jvm_.pending()->className, "java/lang/StringIndexOutOfBoundsException");
}

TEST_F(Toolkit, TextsAreCutTerminatedAndZeroFilled) {
  std::array<char, 6> buffer{};
  const std::map<std::string, std::string> copies{
      {"ab", {"ab\0\0\0\0", 6}}, {"abcde", {"abcde\0", 6}}, {"abcdefgh", {"abcde\0", 6}}};
  for (const auto& [text, expected] : copies) {
    buffer.fill('#');
    EXPECT_EQ(copyJavaStringToBuffer(env_, jvm_.newText(text), buffer.data(), 6), 0);
    EXPECT_EQ(std::string(buffer.data(), 6), expected);
    buffer.fill('#');
    jvm_.setObject(object_, "name", "Ljava/lang/String;", jvm_.newText(text));
    EXPECT_EQ(getStringField(env_, object_, "name", buffer.data(), 6), 0);
    EXPECT_EQ(std::string(buffer.data(), 6), expected);
  }
  for (const jstring text : {jvm_.newText(""), jstring{}}) {
    buffer.fill('#');
    EXPECT_EQ(copyJavaStringToBuffer(env_, text, buffer.data(), 6), 2817);
    EXPECT_EQ(std::string(buffer.data(), 6), std::string("\0#####", 6));
  }
  jvm_.failingCall = jvm_.fallibleCalls + 1;
  EXPECT_EQ(copyJavaStringToBuffer(env_, jvm_.newText("ab"), buffer.data(), 6), 2817);
  EXPECT_EQ(std::string(buffer.data(), 6), std::string("\0#####", 6));
}

TEST_F(Toolkit, IntArraysAsBytes) {
  std::array<std::int8_t, 4> bytes{9, 9, 9, 9};
  jvm_.setObject(object_, "list", "[I", jvm_.newInts({}));
  EXPECT_EQ(getIntArrayFieldAsBytes(env_, object_, "list", bytes.data(), 0), 0);
  EXPECT_EQ(bytes[0], 9);
  EXPECT_EQ(getIntArrayFieldAsBytes(env_, object_, "list", bytes.data()), 0);
  EXPECT_EQ(bytes, (std::array<std::int8_t, 4>{0, 9, 9, 9}));
  jvm_.setObject(object_, "list", "[I", jvm_.newInts({0x1FF, 0x80, 0x17F}));
  EXPECT_EQ(getIntArrayFieldAsBytes(env_, object_, "list", bytes.data()), 0);
  EXPECT_EQ(bytes, (std::array<std::int8_t, 4>{-1, -128, 127, 9}));
  jvm_.setObject(object_, "list", "[I", jvm_.newInts(std::vector<jint>(300, 5)));
  EXPECT_EQ(getIntArrayFieldAsBytes(env_, object_, "list", bytes.data(), 3), 0);
  EXPECT_EQ(bytes, (std::array<std::int8_t, 4>{5, 5, 5, 9}));
  std::array<std::int8_t, 300> all{};
  EXPECT_EQ(getIntArrayFieldAsBytes(env_, object_, "list", all.data()), 0);
  EXPECT_EQ(all[299], 5);
}

TEST_F(Toolkit, StringArraysStopAtANullAndAtTheCapacity) {
  const jobjectArray list = newObjectArrayByName(env_, "java/lang/String", 3);
  env_->SetObjectArrayElement(list, 0, jvm_.newText("one"));
  env_->SetObjectArrayElement(list, 1, jvm_.newText("three"));
  jvm_.setObject(object_, "list", "[Ljava/lang/String;", list);
  std::string table(12, '#');
  EXPECT_EQ(getStringArrayField(env_, object_, "list", table.data(), 4), 2817);
  EXPECT_EQ(table, std::string("one\0thr\0####", 12));
  table.assign(12, '#');
  EXPECT_EQ(getStringArrayField(env_, object_, "list", table.data(), 4, 1), 0);
  EXPECT_EQ(table, std::string("one\0########", 12));

  EXPECT_EQ(setStringArrayField(env_, object_, "list", "a\0\0b\0\0", 2, 3), 0);
  const auto elements = jvm_.elementsOf(jvm_.objectOf(object_, "list"));
  ASSERT_EQ(elements.size(), 2U);
  EXPECT_EQ(jvm_.intsOf(newIntArrayFromBytes(env_, std::array<std::int8_t, 2>{-1, 5}.data(), 2)),
            (std::vector<jint>{-1, 5}));
}

TEST_F(Toolkit, NothingToDo) {
  EXPECT_EQ(getStringField(env_, object_, "text", nullptr, 0), 0);
  deleteLocalRef(env_, nullptr);
  deleteLocalRef(nullptr, object_);
  EXPECT_EQ(jvm_.heap.misuses(), 0);
  const auto rows = env_->NewObjectArray(2, env_->FindClass("[B"), nullptr);
  jvm_.setObject(object_, "rows", "[[B", rows);
  std::array<std::byte, 4> bytes{};
  EXPECT_EQ(getByteMatrixField(env_, object_, "rows", bytes.data(), 2, 2), 2817);
  EXPECT_FALSE(jvm_.pending());
}

TEST_F(Toolkit, EachFailureEndsAnOperationThatHoldsNothing) {
  using Operation = int (*)(JNIEnv*, jobject);
  const std::map<std::string, Operation> operations{
      {"setSjisStringField",
       [](JNIEnv* env, jobject object) { return setSjisStringField(env, object, "sjis", "x", 2); }},
      {"setScaledShortField",
       [](JNIEnv* env, jobject object) { return setScaledShortField(env, object, "short", 1.5); }},
      {"getScaledShortArrayField",
       [](JNIEnv* env, jobject object) {
         std::array<double, 2> values{};
         return getScaledShortArrayField(env, object, "shorts", values.data(), 2);
       }},
      {"setScaledShortArrayField",
       [](JNIEnv* env, jobject object) {
         const std::array<double, 2> values{};
         return setScaledShortArrayField(env, object, "shorts", values.data(), 2);
       }},
  };
  for (const auto& [name, operation] : operations) {
    const int before = jvm_.fallibleCalls;
    resetTestRuntime();
    EXPECT_EQ(operation(env_, object_), 0) << name;
    const int calls = jvm_.fallibleCalls - before;
    const int allocations = testRuntime().allocations;
    for (int call = 1; call <= calls + allocations; ++call) {
      jvm_.clearPending();
      jvm_.failingCall = call <= calls ? jvm_.fallibleCalls + call : 0;
      resetTestRuntime(std::max(0, call - calls));
      EXPECT_EQ(operation(env_, object_), 2817) << name << ", failure " << call;
      EXPECT_EQ(testRuntime().liveRecords, 0) << name << ", failure " << call;
    }
    jvm_.clearPending();
  }
}

TEST_F(Toolkit, MatricesEndAtAMissingRow) {
  std::array<std::int32_t, 4> ints{};
  const int references = jvm_.heap.liveReferences();
  EXPECT_EQ(getIntMatrixField(env_, object_, "matrix", ints.data(), 2, 2), 0);
  EXPECT_EQ(jvm_.heap.liveReferences(), references);
  const jobjectArray rows = newObjectArrayByName(env_, "[I", 3);
  env_->SetObjectArrayElement(rows, 0, jvm_.newInts({1, 2}));
  env_->SetObjectArrayElement(rows, 2, jvm_.newInts({3, 4}));
  jvm_.setObject(object_, "matrix", "[[I", rows);
  ints = {9, 9, 9, 9};
  EXPECT_EQ(getIntMatrixField(env_, object_, "matrix", ints.data(), 3, 1), 2817);
  EXPECT_EQ(ints, (std::array<std::int32_t, 4>{1, 9, 9, 9}));
  EXPECT_FALSE(jvm_.pending());
  EXPECT_EQ(getIntMatrixField(env_, object_, "matrix", ints.data(), 1, 3), 2817);
  EXPECT_EQ(jvm_.pending()->className, "java/lang/ArrayIndexOutOfBoundsException");
}

}  // namespace
}  // namespace quorvelj::testing
