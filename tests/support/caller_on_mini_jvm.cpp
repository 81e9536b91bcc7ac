// A caller in the mini JVM, which has the classes and fields of the Java half.
#include <memory>

#include "tests/support/caller.h"
#include "tests/support/callers_jvm.h"
#include "tests/support/mini_jvm.h"

namespace quorvelj::testing {
namespace {

/// The JVM, and the JNI functions that tests use and the bridge does not.
struct Machine {
  Machine() : functions(*jvm.env()->functions) {
    jvm.declare(javaFields());
    functions.PushLocalFrame = &pushLocalFrame;
    functions.PopLocalFrame = &popLocalFrame;
    jvm.env()->functions = &functions;
  }
  static jint JNICALL pushLocalFrame(JNIEnv*, jint);
  static jobject JNICALL popLocalFrame(JNIEnv*, jobject);

  MiniJvm jvm;
  JNINativeInterface_ functions;
};

std::unique_ptr<Machine> current;
int localFrames = 0;

MiniJvm& jvm() {
  if (current == nullptr) {
    current = std::make_unique<Machine>();
  }
  return current->jvm;
}

jint JNICALL Machine::pushLocalFrame(JNIEnv*, jint) {
  ++localFrames;
  return 0;
}

// The end of the outermost local frame ends the machine, and all that a test made in it.
jobject JNICALL Machine::popLocalFrame(JNIEnv*, jobject) {
  if (--localFrames == 0) {
    current.reset();
  }
  return nullptr;
}

}  // namespace

JNIEnv* javaEnv() { return jvm().env(); }

std::string classOf(jobject object) { return jvm().classOf(object); }

jint valueOf(jobject integer) { return jvm().intOf(integer, "code"); }

std::optional<PendingException> takeException() {
  const auto taken = jvm().pending();
  jvm().clearPending();
  return taken;
}

}  // namespace quorvelj::testing
