#include "tests/support/native_methods.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "tessaly_str_diskarray_DiskArrayUtilityJNI.h"

namespace quorvelj::testing {
namespace {

template <class Value>
Value unpack(const jvalue& argument) {
  if constexpr (std::is_same_v<Value, jint>) {
    return argument.i;
  } else {
    return static_cast<Value>(argument.l);
  }
}

template <auto Function>
struct Invoker;

template <class Result, class... Argument, Result(JNICALL* Function)(JNIEnv*, jobject, Argument...)>
struct Invoker<Function> {
  static jvalue invoke(JNIEnv* env, const std::vector<jvalue>& arguments) {
    return [&]<std::size_t... Index>(std::index_sequence<Index...>) {
      jvalue result{};
      if constexpr (std::is_same_v<Result, void>) {
        Function(env, nullptr, unpack<Argument>(arguments[Index])...);
      } else if constexpr (std::is_same_v<Result, jint>) {
        result.i = Function(env, nullptr, unpack<Argument>(arguments[Index])...);
      } else {
        result.l = Function(env, nullptr, unpack<Argument>(arguments[Index])...);
      }
      return result;
    }
    (std::index_sequence_for<Argument...>{});
  }
};

const std::vector<NativeMethod>& table() {
#define NATIVE_METHOD_ENTRY(name, escaped, signature) \
  {#name, signature, Invoker<&Java_tessaly_str_diskarray_DiskArrayUtilityJNI_##escaped>::invoke},
  static const std::vector<NativeMethod> methods{
#include "native_methods.inc"
  };
#undef NATIVE_METHOD_ENTRY
  return methods;
}

}  // namespace

std::vector<std::string> NativeMethod::argumentTypes() const {
  std::vector<std::string> types;
  for (std::size_t at = 1; signature[at] != ')';) {
    std::size_t end = signature.find_first_not_of('[', at);
    end = signature[end] == 'L' ? signature.find(';', end) : end;
    types.push_back(signature.substr(at, end + 1 - at));
    at = end + 1;
  }
  return types;
}

char NativeMethod::resultKind() const {
  const char kind = signature[signature.find(')') + 1];
  return kind == '[' ? 'L' : kind;
}

std::span<const NativeMethod> nativeMethods() { return table(); }

const NativeMethod& nativeMethod(const std::string& name) {
  for (const NativeMethod& method : table()) {
    if (method.name == name) {
      return method;
    }
  }
  std::fprintf(stderr, "no native method %s\n", name.c_str());
  std::abort();
}

}  // namespace quorvelj::testing
