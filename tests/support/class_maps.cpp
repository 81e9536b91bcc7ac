#include "tests/support/class_maps.h"

#include "record_headers.inc"

namespace quorvelj::testing {

std::string classNameOf(const std::string& signature) {
  const std::size_t start = signature.find_first_not_of("[L");
  return start == std::string::npos ? "" : signature.substr(start, signature.find(';') - start);
}

const std::map<std::string, MappedClass>& mappedClasses() {
  static const std::map<std::string, MappedClass> classes{
#define RECORD_ENTRY(header, Record) \
  {ClassOf<Record>::kMap.className, {&ClassOf<Record>::kMap, sizeof(Record)}},
#include "record_entries.inc"
#undef RECORD_ENTRY
  };
  return classes;
}

}  // namespace quorvelj::testing
