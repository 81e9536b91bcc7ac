#pragma once

#include <cstddef>
#include <map>
#include <string>

#include "bridge/class_map.h"

namespace quorvelj::testing {

/// A Java class and the record that has its name.
struct MappedClass {
  const ClassMap* map;
  std::size_t bytes;
};

/// The name in slash form of the class in a JNI signature, or of the elements of an array; "" for a
/// signature without a class.
std::string classNameOf(const std::string& signature);

/// All of them, by the class's name in slash form. Parts have no name and come under "".
const std::map<std::string, MappedClass>& mappedClasses();

}  // namespace quorvelj::testing
