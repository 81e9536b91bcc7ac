#include "tests/support/native_methods.h"

#include <cstdio>
#include <cstdlib>
#include <ostream>
#include <string_view>

namespace quorvelj::testing {

thread_local const char* callersFrame = nullptr;

std::vector<std::string> NativeMethod::argumentTypes() const {
  const std::string_view whole = signature;
  std::vector<std::string> types;
  for (std::size_t at = 1; whole[at] != ')';) {
    std::size_t end = whole.find_first_not_of('[', at);
    end = whole[end] == 'L' ? whole.find(';', end) : end;
    types.emplace_back(whole.substr(at, end + 1 - at));
    at = end + 1;
  }
  return types;
}

char NativeMethod::resultKind() const {
  const std::string_view whole = signature;
  const char kind = whole[whole.find(')') + 1];
  return kind == '[' ? 'L' : kind;
}

void PrintTo(const NativeMethod& method, std::ostream* out) { *out << method.name; }

const NativeMethod& nativeMethod(const std::string& name) {
  for (const NativeMethod& method : nativeMethods()) {
    if (method.name == name) {
      return method;
    }
  }
  std::fprintf(stderr, "no native method %s\n", name.c_str());
  std::abort();
}

}  // namespace quorvelj::testing
