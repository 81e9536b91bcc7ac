#pragma once

#include "bridge/class_map.h"

namespace quorvelj {

/// The second light form of the pair information, which the light form of the whole array shares.
extern const ClassMap kSecondLightPairs;

}  // namespace quorvelj
