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

template <class Result, class... Argument>
using Function = Result(JNICALL*)(JNIEnv*, jobject, Argument...);

/// Calls a method of this C++ signature.
template <class Result, class... Argument>
jvalue callAs(const NativeMethod& method, JNIEnv* env, const std::vector<jvalue>& arguments) {
  const auto function = reinterpret_cast<Function<Result, Argument...>>(method.function);
  return [&]<std::size_t... Index>(std::index_sequence<Index...>) {
    jvalue result{};
    callersFrame = static_cast<const char*>(__builtin_frame_address(0));
    if constexpr (std::is_same_v<Result, void>) {
      function(env, nullptr, unpack<Argument>(arguments[Index])...);
    } else if constexpr (std::is_same_v<Result, jint>) {
      result.i = function(env, nullptr, unpack<Argument>(arguments[Index])...);
    } else {
      result.l = function(env, nullptr, unpack<Argument>(arguments[Index])...);
    }
    return result;
  }
  (std::index_sequence_for<Argument...>{});
}

template <class Result, class... Argument>
NativeMethod linked(const char* name, const char* signature,
                    Function<Result, Argument...> function) {
  return {name, signature, reinterpret_cast<NativeMethod::AnyFunction>(function),
          &callAs<Result, Argument...>};
}

}  // namespace

std::span<const NativeMethod> nativeMethods() {
#define NATIVE_METHOD_ENTRY(name, escaped, signature) \
  linked(#name, signature, &Java_tessaly_str_diskarray_DiskArrayUtilityJNI_##escaped),
  static const NativeMethod methods[] = {
#include "native_methods.inc"
  };
#undef NATIVE_METHOD_ENTRY
  return methods;
}

}  // namespace quorvelj::testing
