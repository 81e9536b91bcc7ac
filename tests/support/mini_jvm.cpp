#include "tests/support/mini_jvm.h"

#include "tests/support/fail.h"
#include "tests/support/mini_jvm/inputs.h"
#include "tests/support/mini_jvm/jni_table.h"

namespace quorvelj::testing {
namespace {

/// The field of an object that the bridge filled.
const mini::Slot& filled(mini::Object* object, const char* name) {
  const mini::Slot* const slot = object == nullptr ? nullptr : object->findSet(name);
  if (slot == nullptr) {
    fail(std::string("no field was set: ") + name);
  }
  return *slot;
}

}  // namespace

MiniJvm::MiniJvm() : env_{{&mini::jniTable()}, this} {}

void MiniJvm::declare(const std::vector<JavaField>& fields) {
  for (const JavaField& field : fields) {
    heap.declareField(field.className, field.name, field.signature, field.made);
  }
}

std::string MiniJvm::classOf(jobject object) { return heap.resolve(object)->type->name; }

jstring MiniJvm::newText(const std::string& text) {
  return static_cast<jstring>(heap.refer(heap.make("java/lang/String", text)));
}

jobject MiniJvm::newInput(const std::string& signature) {
  return heap.refer(mini::makeInput(heap, profile, signature));
}

std::vector<jvalue> MiniJvm::newArguments(const NativeMethod& method) {
  std::vector<jvalue> arguments;
  for (const std::string& type : method.argumentTypes()) {
    jvalue& value = arguments.emplace_back();
    if (type == "I") {
      value.i = profile.random != nullptr ? profile.random->number() : 3;
    } else {
      value.l = heap.refer(mini::makeInput(heap, profile, type));
    }
  }
  return arguments;
}

jintArray MiniJvm::newInts(const std::vector<jint>& values) {
  return static_cast<jintArray>(heap.refer(heap.make("[I", values)));
}

void MiniJvm::setObject(jobject object, const char* name, const char* signature, jobject value) {
  mini::Object* const target = heap.resolve(object);
  target->slot(*heap.findMember(target->type, name, signature)) = {
      true, 0, mini::Heap::hold(value == nullptr ? nullptr : heap.resolve(value))};
}

jint MiniJvm::intOf(jobject object, const char* name) {
  return filled(heap.resolve(object), name).number;
}
jobject MiniJvm::objectOf(jobject object, const char* name) {
  return heap.refer(filled(heap.resolve(object), name).object);
}
std::string MiniJvm::textOf(jobject object, const char* name) {
  return *filled(heap.resolve(object), name).object->text();
}
std::string MiniJvm::textOf(jstring text) { return *heap.resolve(text)->text(); }
std::vector<jint> MiniJvm::intsOf(jobject array) {
  return *heap.resolve(array)->get<std::vector<jint>>();
}
std::vector<jbyte> MiniJvm::bytesOf(jobject array) {
  return *heap.resolve(array)->get<std::vector<jbyte>>();
}
std::vector<jobject> MiniJvm::elementsOf(jobject array) {
  std::vector<jobject> elements;
  for (mini::Object* const element : *heap.resolve(array)->elements()) {
    elements.push_back(heap.refer(element));
  }
  return elements;
}

std::optional<PendingException> MiniJvm::pending() {
  if (thrown == nullptr) {
    return std::nullopt;
  }
  const std::string* const message = thrown->text();
  return PendingException{thrown->type->name, message == nullptr ? "" : *message,
                          heap.codeOf(thrown).number};
}

}  // namespace quorvelj::testing
