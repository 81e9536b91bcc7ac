#pragma once

#include <jni.h>

#include <deque>
#include <istream>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

// A Java virtual machine of the JNI functions that the bridge may use, over objects in memory.
// Classes, fields and methods spring into being when they are asked for. Any other JNI function
// ends the process.
namespace quorvelj::testing {

/// What the fields of an input object hold until they are set.
struct InputProfile {
  std::string text = "text";
  std::size_t primitives = 8192;  // elements of int, byte and short arrays
  std::size_t objects = 3;        // elements of object arrays
};

struct PendingException {
  std::string className;
  std::string message;
  jint code = 0;
};

class MiniJvm {
 public:
  MiniJvm();
  ~MiniJvm();
  MiniJvm(const MiniJvm&) = delete;
  MiniJvm& operator=(const MiniJvm&) = delete;

  JNIEnv* env() { return &env_.env; }

  /// Learns classes, a field a line: "QVSessionInfo session_id [B 32", with the length of the array
  /// that the constructor makes, or -1. A class that was learnt has these fields and no others.
  void learnClasses(std::istream& fields);
  /// The signature of a field of a learnt class, or "" where it has none of that name.
  std::string signatureOf(jobject object, const std::string& field);
  /// Slash form.
  std::string classOf(jobject object);

  /// Objects for a test to hand over. An input's fields follow the profile until they are set.
  jstring newText(const std::string& text);
  jobject newInput();
  /// The value of an argument of this JNI type: an int, a text, an input or an array of inputs.
  jvalue newArgument(const std::string& signature);
  jintArray newInts(const std::vector<jint>& values);
  void setObject(jobject object, const std::string& name, const std::string& signature,
                 jobject value);
  InputProfile profile;

  /// What a test finds in an object that the bridge filled. A field that was never set fails.
  jint intOf(jobject object, const std::string& name);
  std::string textOf(jobject object, const std::string& name);
  jobject objectOf(jobject object, const std::string& name);
  std::vector<jint> intsOf(jobject array);
  std::vector<jbyte> bytesOf(jobject array);
  std::vector<jobject> elementsOf(jobject array);

  /// Makes a class or every field of a name impossible to find.
  void removeClass(const std::string& name) { missing_.push_back(name); }
  void removeField(const std::string& name) { missing_.push_back(name); }

  /// Makes the n-th JNI call that can fail do so, counted from 1; 0 none.
  void failCall(int call) { failingCall_ = call; }
  /// The JNI calls so far that could have failed.
  int fallibleCalls() const { return fallibleCalls_; }
  /// All JNI calls so far.
  int calls() const { return calls_; }

  std::optional<PendingException> pending() const;
  void clearPending() { pending_ = nullptr; }
  /// Local references that native code made and did not delete, and the most there were at once.
  int liveReferences() const { return liveReferences_; }
  int mostReferences() const { return mostReferences_; }
  /// Characters and array elements that were obtained and not released.
  int unreleased() const { return unreleased_; }
  /// References used after their deletion, or of the wrong kind.
  int misuses() const { return misuses_; }

 private:
  struct Class;
  struct Object;
  struct Reference;
  struct Member;
  struct Functions;
  struct Env {
    JNIEnv env;
    MiniJvm* jvm;
  };
  struct Slot {
    bool set = false;
    jint number = 0;
    Object* object = nullptr;
  };

  Class* findClass(const char* name);
  /// The member of a class; where it has none, a new one or null.
  Member* findMember(Class* type, const char* name, const char* signature, bool make = true);
  Object* make(Class* type);
  Object* makeInput(const std::string& signature);
  Object* makeThrowable(const std::string& className, const std::string& message, jint code = 0);
  jobject refer(Object* object);
  Object* resolve(jobject reference);
  Slot& slotOf(Object* object, const Member* member);
  Slot& namedSlot(jobject object, const std::string& name);
  bool isMissing(std::string_view name) const;
  /// Enters a JNI call: counts and traces it. True where it is to fail.
  template <class... Detail>
  bool enter(bool fallible, const char* call, const Detail&... detail);
  void throwNew(const std::string& className, const std::string& message = "");

  Env env_;
  std::unique_ptr<JNINativeInterface_> table_;
  std::map<std::string, std::unique_ptr<Class>> classes_;
  std::unordered_map<const void*, Class*> recentClasses_;
  std::deque<Object> objects_;
  std::deque<Reference> references_;
  std::deque<Reference*> deleted_;
  std::vector<std::string> missing_;
  /// Characters that native code holds.
  std::unordered_map<const char*, std::vector<char>> characters_;
  Object* pending_ = nullptr;
  int failingCall_ = 0;
  int fallibleCalls_ = 0;
  int calls_ = 0;
  int liveReferences_ = 0;
  int mostReferences_ = 0;
  int unreleased_ = 0;
  int misuses_ = 0;
};

}  // namespace quorvelj::testing
