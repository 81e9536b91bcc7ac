// Every map against the Java class of its name: the same fields, of the same types.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "bridge/class_map.h"
#include "record_headers.inc"
#include "tests/support/class_maps.h"
#include "tests/support/departures.h"
#include "tests/support/java_fields.h"

namespace quorvelj::testing {
namespace {

const std::string kPackage = "tessaly/str/diskarray/";

using Fields = std::set<std::string>;  // "session_id [B"

/// The fields of Java's classes that have any, by class.
std::map<std::string, Fields> javaClasses() {
  std::map<std::string, Fields> classes;
  for (const JavaField& field : javaFields()) {
    classes[field.className].insert(field.name + ' ' + field.signature);
  }
  return classes;
}

void add(Fields& fields, const ClassMap& map) {
  for (const Field& field : map.fields) {
    if (field.kind == FieldKind::kPart) {
      add(fields, *field.element);
    } else {
      EXPECT_TRUE(fields.insert(std::string(field.name) + ' ' + field.signature).second)
          << field.name << " is filled twice";
    }
  }
}

/// Fields that native methods read by maps of their own, each into a record of its own.
void addFieldsReadApart(std::map<std::string, Fields>& mapped) {
  for (const NativeMethod& method : nativeMethods()) {
    for (const ClassMap* const map : departureOf(method).alsoReads) {
      add(mapped[classNameOf(method.argumentTypes().back())], *map);
    }
  }
}

TEST(JavaClasses, HaveTheFieldsOfTheirMaps) {
  std::map<std::string, Fields> mapped;
  addFieldsReadApart(mapped);
  const auto enter = [&](const char* record, const ClassMap& map) {
    if (*map.className == '\0') {
      return;  // The fields of a part are looked at where it is a member.
    }
    EXPECT_EQ(map.className, kPackage + record);
    if (!map.fields.empty()) {
      add(mapped[map.className], map);
    }
  };
#define RECORD_ENTRY(header, Record) enter(#Record, ClassOf<Record>::kMap);
#include "record_entries.inc"
#undef RECORD_ENTRY
  const auto java = javaClasses();
  for (const auto& [name, fields] : java) {
    EXPECT_EQ(mapped[name], fields) << "the Java class " << name << ", on the right";
  }
  for (const auto& [name, fields] : mapped) {
    EXPECT_TRUE(java.contains(name)) << "no Java class " << name << " with fields";
  }
}

}  // namespace
}  // namespace quorvelj::testing
