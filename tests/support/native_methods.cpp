#include "tests/support/native_methods.h"

#include <algorithm>
#include <ostream>
#include <string_view>

#include "tests/support/fail.h"

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

int NativeMethod::libraryIndexOf(std::size_t argument) const {
  const std::vector<std::string> types = argumentTypes();
  const auto session = static_cast<std::size_t>(
      std::find(types.begin(), types.end(), "Ltessaly/str/diskarray/QVSessionInfo;") -
      types.begin());
  if (session == types.size() || argument == 0 || argument > session) {
    return static_cast<int>(argument);
  }
  return argument == session ? 1 : static_cast<int>(argument) + 1;
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
  fail("no native method " + name);
}

}  // namespace quorvelj::testing
