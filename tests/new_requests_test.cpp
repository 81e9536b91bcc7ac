// What reaches the library of Java objects that are as their constructors leave them.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "tests/support/class_maps.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/native_methods.h"
#include "tests/support/simulated_library.h"

namespace quorvelj::testing {
namespace {

using Bytes = std::vector<unsigned char>;

/// The classes of the Java half whose objects, or those inside them, begin with a field of null of
/// these.
template <class IsMeant>
std::set<std::string> classesWithNull(IsMeant isMeant) {
  std::set<std::string> found;
  for (std::size_t before = SIZE_MAX; before != found.size();) {
    before = found.size();
    for (const JavaField& field : javaFields()) {
      if ((field.made.empty() && isMeant(field.signature)) ||
          found.contains(classNameOf(field.signature))) {
        found.insert(field.className);
      }
    }
  }
  return found;
}

/// The classes of what native methods return, and of all that is inside.
std::set<std::string> builtClasses() {
  std::set<std::string> built;
  for (const NativeMethod& method : nativeMethods()) {
    built.insert(classNameOf(
        std::string(method.signature).substr(std::string(method.signature).find(')') + 1)));
  }
  for (std::size_t before = 0; before != built.size();) {
    before = built.size();
    for (const JavaField& field : javaFields()) {
      if (built.contains(field.className)) {
        built.insert(classNameOf(field.signature));
      }
    }
  }
  return built;
}

/// Expects that the bytes of all fields are zeros.
void expectZeros(const ClassMap& map, const unsigned char* record) {
  for (const Field& field : map.fields) {
    std::size_t elements = 1;
    for (std::size_t dimension = 0; dimension < field.rank; ++dimension) {
      elements *= field.extents[dimension];
    }
    const unsigned char* const start = record + field.offset;
    for (std::size_t element = 0; element < elements; ++element) {
      const unsigned char* const bytes = start + element * field.elementBytes;
      if (field.element != nullptr) {
        expectZeros(*field.element, bytes);
      } else {
        ASSERT_TRUE(std::all_of(bytes, bytes + field.elementBytes,
                                [](unsigned char byte) { return byte == 0; }))
            << map.className << '.' << field.name << " has bytes that Java never had";
      }
    }
  }
}

class NewRequests : public SimulatedLibrary {
 protected:
  NewRequests() {
    quorvelSimForceResult("*", 1234, 1'000'000);
    quorvelSimObserve([](const char* function) { function_ = function; });
  }

  static jobject construct(JNIEnv* env, const std::string& className) {
    const jclass type = env->FindClass(className.c_str());
    return env->NewObject(type, env->GetMethodID(type, "<init>", "()V"));
  }
  /// Calls a method with new objects. Returns the library's input of this size, that in the place
  /// of the argument before others.
  Bytes inputOf(const NativeMethod& method, std::size_t argument, std::size_t size) {
    MiniJvm jvm;
    jvm.declare(javaFields());
    std::vector<jvalue> arguments = jvm.newArguments(method);
    const std::vector<std::string> types = method.argumentTypes();
    for (std::size_t index = 0; index < types.size(); ++index) {
      if (mappedClasses().contains(classNameOf(types[index]))) {
        arguments[index].l = construct(jvm.env(), classNameOf(types[index]));
      }
    }
    function_.clear();
    method.invoke(jvm.env(), arguments);
    std::vector<int> places{method.libraryIndexOf(argument), 0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    for (const int index : places) {
      if (quorvelSimLastInput(function_.c_str(), index, nullptr, 0) == size) {
        Bytes bytes(size);
        quorvelSimLastInput(function_.c_str(), index, bytes.data(), size);
        return bytes;
      }
    }
    return {};
  }

  static inline std::string function_;
};

TEST_F(NewRequests, BringNoByteThatJavaNeverHad) {
  // They hold snapshots, which the array returned before.
  std::set<std::string> apart;
  const std::string package = "tessaly/str/diskarray/PerformanceOutput";
  for (const char* const name : {"AllRequest", "AllExRequest", "GraphInfoRequest"}) {
    apart.insert(package + name);
  }
  const std::set<std::string> built = builtClasses();
  const auto withNullText =
      classesWithNull([](const std::string& type) { return type == "Ljava/lang/String;"; });
  const auto withNull = classesWithNull([](const std::string& type) { return type != "I"; });
  int looked = 0;
  for (const NativeMethod& method : nativeMethods()) {
    const std::vector<std::string> types = method.argumentTypes();
    for (std::size_t argument = 0; argument < types.size(); ++argument) {
      const std::string name = classNameOf(types[argument]);
      const auto mapped = mappedClasses().find(name);
      if (mapped == mappedClasses().end()) {
        continue;
      }
      SCOPED_TRACE(std::string(method.name) + ' ' + name);
      EXPECT_FALSE(withNullText.contains(name)) << "begins with a null text";
      if (withNull.contains(name) && !apart.contains(name)) {
        EXPECT_TRUE(built.contains(name)) << "is never built, and begins with a null field";
        continue;
      }
      resetTestRuntime();
      const Bytes record = inputOf(method, argument, mapped->second.bytes);
      if (name.ends_with("/HGInfo") && record.empty()) {
        continue;  // The library gets the name by itself.
      }
      ASSERT_FALSE(record.empty());
      expectZeros(*mapped->second.map, record.data());
      ++looked;
    }
  }
  std::printf("new requests: %d arguments\n", looked);
  EXPECT_GT(looked, 300);
}

}  // namespace
}  // namespace quorvelj::testing
