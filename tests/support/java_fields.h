#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace quorvelj::testing {

/// A field of a class of the Java half.
struct JavaField {
  std::string className;  // slash form
  std::string name;
  std::string signature;
  /// What the constructor makes, if anything: the lengths of arrays from the outer to the inner
  /// ones, or one number.
  std::vector<std::size_t> made;
};

/// All of them, from the list that FieldLister made of the jar.
const std::vector<JavaField>& javaFields();

}  // namespace quorvelj::testing
