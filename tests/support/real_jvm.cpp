#include "tests/support/real_jvm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "simulator/control.h"

namespace quorvelj::testing {
namespace {

using Kind = Member::Kind;

JNIEnv* start() {
  std::string classPath = "-Djava.class.path=" QUORVELJ_CLASS_PATH;
  std::string libraryPath = "-Djava.library.path=" QUORVELJ_LIBRARY_PATH;
  JavaVMOption options[] = {{classPath.data(), nullptr}, {libraryPath.data(), nullptr}};
  JavaVMInitArgs arguments{JNI_VERSION_1_8, 2, options, JNI_FALSE};
  JavaVM* jvm = nullptr;
  JNIEnv* env = nullptr;
  if (JNI_CreateJavaVM(&jvm, reinterpret_cast<void**>(&env), &arguments) != JNI_OK) {
    std::fputs("no Java virtual machine could be started\n", stderr);
    std::abort();
  }
  return env;
}

/// Ends the test run on an exception that belongs to the test, not to what it tests.
void check() {
  if (realJvm()->ExceptionCheck() == JNI_TRUE) {
    realJvm()->ExceptionDescribe();
    std::abort();
  }
}

jclass bench() {
  const jclass type = realJvm()->FindClass("TestBench");
  check();
  return type;
}

template <class... Argument>
jobject callBench(const char* name, const char* signature, Argument... arguments) {
  const jmethodID method = realJvm()->GetStaticMethodID(bench(), name, signature);
  check();
  const jobject result = realJvm()->CallStaticObjectMethod(bench(), method, arguments...);
  check();
  return result;
}

template <class... Argument>
void runBench(const char* name, const char* signature, Argument... arguments) {
  const jmethodID method = realJvm()->GetStaticMethodID(bench(), name, signature);
  check();
  realJvm()->CallStaticVoidMethod(bench(), method, arguments...);
  check();
}

std::string fromJava(jobject value) {
  const auto string = static_cast<jstring>(value);
  const char* const characters = realJvm()->GetStringUTFChars(string, nullptr);
  std::string copy = characters;
  realJvm()->ReleaseStringUTFChars(string, characters);
  return copy;
}

/// The fields that native code looked up during a call, in order. The look-up is swapped in the
/// thread's JNI function table for as long.
class FieldLog {
 public:
  FieldLog() : own_(*realJvm()->functions), original_(realJvm()->functions) {
    names().clear();
    lookUp() = own_.GetFieldID;
    own_.GetFieldID = &logged;
    realJvm()->functions = &own_;
  }
  ~FieldLog() { realJvm()->functions = original_; }
  FieldLog(const FieldLog&) = delete;
  FieldLog& operator=(const FieldLog&) = delete;

  static std::vector<std::string>& names() {
    static std::vector<std::string> looked;
    return looked;
  }

 private:
  using LookUp = decltype(JNINativeInterface_::GetFieldID);
  static LookUp& lookUp() {
    static LookUp original = nullptr;
    return original;
  }
  static jfieldID JNICALL logged(JNIEnv* env, jclass type, const char* name,
                                 const char* signature) {
    names().emplace_back(name);
    return lookUp()(env, type, name, signature);
  }

  JNINativeInterface_ own_;
  const JNINativeInterface_* original_;
};

/// Expects the members' fields in the order of their list, others between them or not.
void expectOrder(const std::vector<Member>& members) {
  auto at = FieldLog::names().begin();
  for (const Member& member : members) {
    std::string name = member.path.substr(member.path.rfind('.') + 1);
    name = name.substr(0, name.find('['));
    // Elements of one array are looked up once, as their array.
    if (at != FieldLog::names().begin() && *(at - 1) == name && member.path.back() == ']') {
      continue;
    }
    at = std::find(at, FieldLog::names().end(), name);
    if (at == FieldLog::names().end()) {
      ADD_FAILURE() << member.path << " is not visited in its order: "
                    << ::testing::PrintToString(FieldLog::names());
      return;
    }
    ++at;
  }
}

/// A text of ASCII letters that differs from member to member.
std::string sampleText(std::size_t seed, std::size_t length) {
  std::string sample(length, ' ');
  for (std::size_t index = 0; index < length; ++index) {
    sample[index] = static_cast<char>('A' + (seed + index) % 26);
  }
  return sample;
}

/// The value of a member in one round; bytes are at 0x80 in the first and at 0xFF in the second.
std::int32_t sampleNumber(const Member& member, int round) {
  const auto offset = static_cast<std::int32_t>(member.offset);
  switch (member.kind) {
    case Kind::kInt32:
      return round == 0 ? 0x70000000 + offset : -1 - offset;
    case Kind::kInt8:
      return round == 0 ? -128 : -1;
    default:
      return round == 0 ? 128 : 255;
  }
}

/// Raw bytes of a member and the text that Java shows of them.
std::vector<unsigned char> sampleBytes(const Member& member, int round) {
  std::vector<unsigned char> bytes(member.width);
  for (std::size_t index = 0; index < bytes.size(); ++index) {
    bytes[index] = static_cast<unsigned char>((round == 0 ? 0x80 : 0x01) + index);
  }
  return bytes;
}

std::string shown(const std::vector<unsigned char>& bytes) {
  std::string list;
  for (const unsigned char byte : bytes) {
    list += (list.empty() ? "" : ", ") + std::to_string(static_cast<signed char>(byte));
  }
  return '[' + list + ']';
}

void plant(std::vector<unsigned char>& record, const Member& member, std::int32_t value) {
  std::memcpy(record.data() + member.offset, &value, member.kind == Kind::kInt32 ? 4 : 1);
}

}  // namespace

JNIEnv* realJvm() {
  static JNIEnv* const env = start();
  return env;
}

jobject text(const std::string& value) { return realJvm()->NewStringUTF(value.c_str()); }

jobject number(jint value) {
  const jclass type = realJvm()->FindClass("java/lang/Integer");
  return realJvm()->NewObject(type, realJvm()->GetMethodID(type, "<init>", "(I)V"), value);
}

jobject create(const char* className) {
  return callBench("create", "(Ljava/lang/String;)Ljava/lang/Object;", text(className));
}

void set(jobject object, const std::string& path, const std::string& value) {
  runBench("set", "(Ljava/lang/Object;Ljava/lang/String;Ljava/lang/String;)V", object, text(path),
           text(value));
}

void setNull(jobject object, const char* field) {
  runBench("set", "(Ljava/lang/Object;Ljava/lang/String;Ljava/lang/String;)V", object, text(field),
           jobject{});
}

void setLength(jobject object, const char* field, int length) {
  runBench("setLength", "(Ljava/lang/Object;Ljava/lang/String;I)V", object, text(field), length);
}

std::string get(jobject object, const std::string& path) {
  return fromJava(callBench("get", "(Ljava/lang/Object;Ljava/lang/String;)Ljava/lang/String;",
                            object, text(path)));
}

Called call(const char* method, const std::vector<jobject>& arguments) {
  const jobjectArray array = realJvm()->NewObjectArray(
      static_cast<jsize>(arguments.size()), realJvm()->FindClass("java/lang/Object"), nullptr);
  for (std::size_t index = 0; index < arguments.size(); ++index) {
    realJvm()->SetObjectArrayElement(array, static_cast<jsize>(index), arguments[index]);
  }
  jobject result = nullptr;
  {
    const FieldLog log;
    result = callBench("call", "(Ljava/lang/String;[Ljava/lang/Object;)Ljava/lang/Object;",
                       text(method), array);
  }
  const jfieldID failure = realJvm()->GetStaticFieldID(bench(), "failure", "Ljava/lang/String;");
  return {result, fromJava(realJvm()->GetStaticObjectField(bench(), failure))};
}

Member int32At(std::size_t offset, const char* path) { return {path, offset, Kind::kInt32}; }
Member int8At(std::size_t offset, const char* path) { return {path, offset, Kind::kInt8}; }
Member uint8At(std::size_t offset, const char* path) { return {path, offset, Kind::kUInt8}; }
Member textAt(std::size_t offset, std::size_t width, const char* path) {
  return {path, offset, Kind::kText, width};
}
Member bytesAt(std::size_t offset, std::size_t width, const char* path) {
  return {path, offset, Kind::kBytes, width};
}

std::vector<Member> int32sAt(std::size_t offset, const std::vector<const char*>& paths) {
  std::vector<Member> members;
  for (const char* const path : paths) {
    members.push_back(int32At(offset, path));
    offset += 4;
  }
  return members;
}

void expectBuilt(const char* method, const std::vector<jobject>& arguments, std::size_t size,
                 const std::vector<Member>& members, const char* function) {
  function = function == nullptr ? method : function;
  for (const int round : {0, 1}) {
    SCOPED_TRACE(std::string(method) + ", round " + std::to_string(round));
    realJvm()->PushLocalFrame(64);
    std::vector<unsigned char> record(size, 0xEE);
    std::vector<std::string> expected;
    for (const Member& member : members) {
      ASSERT_LE(member.offset + (member.kind == Kind::kInt32 ? 4 : 1), size) << member.path;
      if (member.kind == Kind::kText) {
        // The second round leaves the text without a NUL: it ends where its member does.
        const std::string sample = sampleText(member.offset, member.width - (round == 0 ? 1 : 0));
        std::memcpy(record.data() + member.offset, sample.c_str(), member.width);
        expected.push_back(sample);
      } else if (member.kind == Kind::kBytes) {
        const auto sample = sampleBytes(member, round);
        std::memcpy(record.data() + member.offset, sample.data(), sample.size());
        expected.push_back(shown(sample));
      } else {
        plant(record, member, sampleNumber(member, round));
        expected.push_back(std::to_string(sampleNumber(member, round)));
      }
    }
    quorvelSimPrepareOutput(function, record.data(), record.size());
    const Called called = call(method, arguments);
    quorvelSimPrepareOutput(function, nullptr, 0);
    ASSERT_EQ(called.failure, "");
    expectOrder(members);
    for (std::size_t index = 0; index < members.size(); ++index) {
      EXPECT_EQ(get(called.result, members[index].path), expected[index]) << members[index].path;
    }
    realJvm()->PopLocalFrame(nullptr);
  }
}

void expectRead(const char* method, const std::vector<jobject>& arguments, jobject object,
                int parameter, std::size_t size, const std::vector<Member>& members) {
  for (const int round : {0, 1}) {
    SCOPED_TRACE(std::string(method) + ", round " + std::to_string(round));
    realJvm()->PushLocalFrame(64);
    std::vector<unsigned char> expected(size, 0);
    std::vector<unsigned char> known(size, 0);
    for (const Member& member : members) {
      std::size_t width = member.width;
      if (member.kind == Kind::kText) {
        // The second round's text is longer than its member and is cut to end in a NUL.
        const std::string sample = sampleText(member.offset, width - 1);
        set(object, member.path, round == 0 ? sample : sample + "too long");
        std::memcpy(expected.data() + member.offset, sample.c_str(), width);
      } else if (member.kind == Kind::kBytes) {
        const auto sample = sampleBytes(member, round);
        for (std::size_t index = 0; index < width; ++index) {
          set(object, member.path + '[' + std::to_string(index) + ']',
              std::to_string(static_cast<signed char>(sample[index])));
        }
        std::memcpy(expected.data() + member.offset, sample.data(), width);
      } else {
        width = member.kind == Kind::kInt32 ? 4 : 1;
        set(object, member.path, std::to_string(sampleNumber(member, round)));
        plant(expected, member, sampleNumber(member, round));
      }
      std::memset(known.data() + member.offset, 1, width);
    }
    quorvelSimForceResult(method, 0, 1);
    EXPECT_EQ(call(method, arguments).failure, "");
    expectOrder(members);
    std::vector<unsigned char> record(size);
    ASSERT_EQ(quorvelSimLastInput(method, parameter, record.data(), size), size);
    for (std::size_t index = 0; index < size; ++index) {
      if (known[index] != 0 && record[index] != expected[index]) {
        ADD_FAILURE() << "byte " << index << " is " << int{record[index]} << ", expected "
                      << int{expected[index]};
        break;
      }
    }
    realJvm()->PopLocalFrame(nullptr);
  }
}

}  // namespace quorvelj::testing
