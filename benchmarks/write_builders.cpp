// Prints the builders of written_out.h: from the maps of the largest calls, a function for each
// class and a line for each field, as somebody would write them who had no maps.
#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>

#include "arraylib/all_information.h"
#include "arraylib/performance.h"
#include "bridge/class_map.h"

namespace {

using quorvelj::ClassMap;
using quorvelj::Field;
using quorvelj::FieldKind;

std::string simpleName(const ClassMap& map) {
  const std::string name = map.className;
  return name.substr(name.rfind('/') + 1);
}

/// The array of records at `value`, of which the last `rank` dimensions are left.
std::string newObjects(const Field& field, std::size_t rank, const std::string& env,
                       const std::string& value) {
  const std::string elementClass =
      rank == 1 ? field.element->className : field.signature + (field.rank - rank) + 1;
  const std::string make = rank == 1 ? "build" + simpleName(*field.element)
                                     : "[](JNIEnv* jni, const auto& row) { return " +
                                           newObjects(field, rank - 1, "jni", "row") + "; }";
  return "newObjects(" + env + ", \"" + elementClass + "\", " + value + ", " + make + ")";
}

std::string store(const Field& field) {
  const std::string name = field.name;
  const std::string value = "record." + name;
  const std::string in = "(env, object, \"" + name + "\", ";
  const std::string array = in + '"' + field.signature + "\", ";
  switch (field.kind) {
    case FieldKind::kText:
      return field.rank == 0 ? "setText" + in + value + ")"
                             : "setObject" + array + "newTexts(env, " + value + "))";
    case FieldKind::kRecord:
      return "setObject" + array +
             (field.rank == 0 ? "build" + simpleName(*field.element) + "(env, " + value + ")"
                              : newObjects(field, field.rank, "env", value)) +
             ")";
    case FieldKind::kPart:
      std::fprintf(stderr, "write_builders: no builder has parts, but for %s\n", field.name);
      std::exit(1);
    default:
      if (field.rank == 0) {
        return "setInt" + in + value + ")";
      }
      return field.kind == FieldKind::kBytes && field.rank == 1
                 ? "setBytes" + in + value + ")"
                 : "setObject" + array + "newNumbers(env, \"" + field.signature + "\", " + value +
                       "))";
  }
}

/// Prints the builder of a class behind those of its elements.
void print(const ClassMap& map) {
  static std::set<const ClassMap*> printed;
  if (!printed.insert(&map).second) {
    return;
  }
  for (const Field& field : map.fields) {
    if (field.element != nullptr) {
      print(*field.element);
    }
  }
  const std::string name = simpleName(map);
  std::printf(
      "inline jobject build%s(JNIEnv* env, [[maybe_unused]] const %s& record) {\n"
      "  const jobject object = newObject(env, \"%s\");\n"
      "  return object != nullptr",
      name.c_str(), name.c_str(), map.className);
  for (const Field& field : map.fields) {
    std::printf(" &&\n      %s", store(field).c_str());
  }
  std::printf("\n    ? object : nullptr;\n}\n\n");
}

}  // namespace

int main() {
  using quorvelj::ClassOf;
  for (const ClassMap* const map :
       {&ClassOf<ArrayAllInformation>::kMap, &ClassOf<ArrayAllInfo_Base>::kMap,
        &ClassOf<ArrayAllInfo_BaseAdditional>::kMap, &ClassOf<ArrayAllInfo_HG>::kMap,
        &ClassOf<ArrayAllInfo_iSCSI>::kMap, &ClassOf<ArrayAllInfo_Mapping>::kMap,
        &ClassOf<ArrayAllInfo_Host>::kMap, &ClassOf<ArrayAllInfo_Config>::kMap,
        &ClassOf<ArrayAllInfo_PP>::kMap, &ClassOf<ArrayAllInfo_Replication>::kMap,
        &ClassOf<ArrayAllInfo_Tuning>::kMap, &ClassOf<PerformanceAll>::kMap}) {
    print(*map);
  }
}
