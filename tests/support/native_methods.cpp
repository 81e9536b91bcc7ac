#include "tests/support/native_methods.h"

#include <cstdio>
#include <cstdlib>

namespace quorvelj::testing {

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
