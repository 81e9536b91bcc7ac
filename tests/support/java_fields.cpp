#include "tests/support/java_fields.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace quorvelj::testing {
namespace {

std::vector<JavaField> readFields() {
  std::ifstream list(QUORVELJ_FIELD_LIST);
  std::vector<JavaField> fields;
  for (JavaField field;
       list >> field.className >> field.name >> field.signature >> field.madeLength;) {
    fields.push_back(field);
  }
  if (fields.empty()) {
    std::fputs("no list of fields: " QUORVELJ_FIELD_LIST "\n", stderr);
    std::abort();
  }
  return fields;
}

}  // namespace

const std::vector<JavaField>& javaFields() {
  static const std::vector<JavaField> fields = readFields();
  return fields;
}

}  // namespace quorvelj::testing
