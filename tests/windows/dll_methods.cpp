// The native methods of quorvelj.dll, found by their decorated names and called as stdcall
// functions.
#include "tests/windows/dll_methods.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "tests/support/fail.h"
#include "tests/support/native_methods.h"
#include "tests/support/variant.h"

namespace quorvelj::testing {
namespace {

HMODULE dll() {
  static const HMODULE module =
      LoadLibraryA(keepsIdentifiers() ? "cached\\quorvelj.dll" : "quorvelj.dll");
  if (module == nullptr) {
    fail("quorvelj.dll cannot be loaded: error " + std::to_string(GetLastError()));
  }
  return module;
}

/// The stack of one stdcall call: what is pushed, what comes back, and how much the callee popped.
struct StdcallStack {
  NativeMethod::AnyFunction function;
  const std::uint32_t* words;
  std::uint32_t count;
  std::uint32_t padding;  // bytes left free below the words, to try other stack alignments
  std::uint32_t result;
  std::uint32_t popped;
};

void callStdcall(StdcallStack& stack) {
  asm volatile(
      "movl %%esp, %%edi\n\t"
      "subl 12(%%ebx), %%esp\n\t"
      "movl 8(%%ebx), %%ecx\n\t"
      "movl 4(%%ebx), %%edx\n"
      "1:\n\t"
      "testl %%ecx, %%ecx\n\t"
      "jz 2f\n\t"
      "pushl -4(%%edx,%%ecx,4)\n\t"
      "decl %%ecx\n\t"
      "jmp 1b\n"
      "2:\n\t"
      "movl %%esp, %%esi\n\t"
      "call *(%%ebx)\n\t"
      "movl %%esp, %%ecx\n\t"
      "movl %%edi, %%esp\n\t"
      "subl %%esi, %%ecx\n\t"
      "movl %%ecx, 20(%%ebx)\n\t"
      "movl %%eax, 16(%%ebx)\n\t"
      :
      : "b"(&stack)
      : "eax", "ecx", "edx", "esi", "edi", "memory", "cc");
}

DllCalls counted;

jvalue callExported(const NativeMethod& method, JNIEnv* env, const std::vector<jvalue>& arguments) {
  std::vector<std::uint32_t> words{reinterpret_cast<std::uint32_t>(env), 0};
  for (const jvalue& argument : arguments) {
    words.push_back(static_cast<std::uint32_t>(argument.i));
  }
  StdcallStack stack{};
  stack.function = method.function;
  stack.words = words.data();
  stack.count = static_cast<std::uint32_t>(words.size());
  stack.padding = 4 * (static_cast<std::uint32_t>(counted.calls) % 4);
  callersFrame = static_cast<const char*>(__builtin_frame_address(0));
  callStdcall(stack);
  ++counted.calls;
  counted.methods.insert(method.name);
  EXPECT_EQ(stack.popped, 4 * stack.count) << method.name << " does not clean its stack";
  jvalue result{};
  if (method.resultKind() != 'V') {
    result.i = static_cast<jint>(stack.result);
  }
  return result;
}

NativeMethod exported(const char* name, const char* escaped, const char* signature) {
  NativeMethod method{name, signature, nullptr, &callExported};
  const std::string symbol = std::string("_Java_tessaly_str_diskarray_DiskArrayUtilityJNI_") +
                             escaped + '@' + std::to_string(8 + 4 * method.argumentTypes().size());
  method.function =
      reinterpret_cast<NativeMethod::AnyFunction>(GetProcAddress(dll(), symbol.c_str()));
  if (method.function == nullptr) {
    fail("not exported: " + symbol);
  }
  return method;
}

}  // namespace

std::span<const NativeMethod> nativeMethods() {
#define NATIVE_METHOD_ENTRY(name, escaped, signature) exported(#name, #escaped, signature),
  static const NativeMethod methods[] = {
#include "native_methods.inc"
  };
#undef NATIVE_METHOD_ENTRY
  return methods;
}

const DllCalls& dllCalls() { return counted; }

}  // namespace quorvelj::testing
