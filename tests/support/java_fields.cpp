#include "tests/support/java_fields.h"

#include <fstream>

#include "tests/support/fail.h"
#include "tests/support/split.h"

namespace quorvelj::testing {
namespace {

std::vector<JavaField> readFields() {
  std::ifstream list(QUORVELJ_FIELD_LIST);
  std::vector<JavaField> fields;
  JavaField field;
  for (std::string made; list >> field.className >> field.name >> field.signature >> made;) {
    field.made.clear();
    for (const std::string& length : made == "-" ? std::vector<std::string>() : split(made, ",")) {
      field.made.push_back(std::stoul(length));
    }
    fields.push_back(field);
  }
  if (fields.empty()) {
    fail("no list of fields: " QUORVELJ_FIELD_LIST);
  }
  return fields;
}

}  // namespace

const std::vector<JavaField>& javaFields() {
  static const std::vector<JavaField> fields = readFields();
  return fields;
}

}  // namespace quorvelj::testing
