// The native methods that are linked into this program.
#include <utility>

#include "tessaly_str_diskarray_DiskArrayUtilityJNI.h"
#include "tests/support/native_methods.h"

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

}  // namespace

std::span<const NativeMethod> nativeMethods() {
#define NATIVE_METHOD_ENTRY(name, escaped, signature) \
  {#name, signature, Invoker<&Java_tessaly_str_diskarray_DiskArrayUtilityJNI_##escaped>::invoke},
  static const std::vector<NativeMethod> methods{
#include "native_methods.inc"
  };
#undef NATIVE_METHOD_ENTRY
  return methods;
}

}  // namespace quorvelj::testing
