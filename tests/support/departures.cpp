#include "tests/support/departures.h"

#include <map>
#include <string_view>

#define NATIVE_METHOD_ENTRY(name, escaped, signature) \
  extern "C" const quorvelj::Departure departureOf_##escaped;
#include "native_methods.inc"
#undef NATIVE_METHOD_ENTRY

namespace quorvelj::testing {

const Departure& departureOf(const NativeMethod& method) {
#define NATIVE_METHOD_ENTRY(name, escaped, signature) {#name, &departureOf_##escaped},
  static const std::map<std::string_view, const Departure*> departures{
#include "native_methods.inc"
  };
#undef NATIVE_METHOD_ENTRY
  return *departures.at(method.name);
}

std::vector<unsigned char> outputFor(const NativeMethod& method) {
  return departureOf(method).nullOfZeros ? std::vector<unsigned char>{'u', 's', 'e', 'r'}
                                         : std::vector<unsigned char>{};
}

}  // namespace quorvelj::testing
