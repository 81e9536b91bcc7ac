#pragma once

#include "bridge/class_map.h"

// The compact forms of the LU mapping. They fill the fields of the full forms, but are maps of
// their own, so that they can come to fill fewer.
namespace quorvelj {

extern const ClassMap kCompactLuMappingHGInfo;
extern const ClassMap kCompactLuMappingPortInfo;
extern const ClassMap kCompactLuMappingCtlInfo;
extern const ClassMap kCompactLuMapping;

}  // namespace quorvelj
