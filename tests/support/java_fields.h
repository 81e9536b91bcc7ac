#pragma once

#include <string>
#include <vector>

namespace quorvelj::testing {

/// A field of a class of the Java half.
struct JavaField {
  std::string className;  // slash form
  std::string name;
  std::string signature;
  /// The length of the array that the constructor makes, or -1.
  int madeLength;
};

/// All of them, from the list that FieldLister made of the jar.
const std::vector<JavaField>& javaFields();

}  // namespace quorvelj::testing
