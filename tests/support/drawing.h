#pragma once

#include <cstddef>
#include <random>
#include <vector>

namespace quorvelj::testing {

/// The bytes of records that each native method takes, in the order of `nativeMethods`.
std::vector<std::size_t> recordBytes();

/// Draws native methods by their place, the rarer the more bytes their records take.
std::discrete_distribution<std::size_t> drawingByCost(const std::vector<std::size_t>& recordBytes);

}  // namespace quorvelj::testing
