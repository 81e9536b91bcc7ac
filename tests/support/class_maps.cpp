#include "tests/support/class_maps.h"

#include "record_headers.inc"

namespace quorvelj::testing {

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
