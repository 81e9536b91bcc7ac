// Prints docs/reference.md: every native method with its frame, and every record with its layout.
// Usage: reference METHODS_DIRECTORY [--compare FILE]
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "bridge/class_map.h"
#include "bridge/departure.h"
#include "record_headers.inc"

#define NATIVE_METHOD_ENTRY(name, escaped, signature) \
  extern "C" const quorvelj::Departure departureOf_##escaped;
#include "native_methods.inc"
#undef NATIVE_METHOD_ENTRY

namespace {

using quorvelj::ClassMap;
using quorvelj::Field;
using quorvelj::FieldKind;

struct Method {
  std::string name;
  std::string signature;
  std::string departs;
};

const std::vector<Method> kMethods{
#define NATIVE_METHOD_ENTRY(name, escaped, signature) \
  {#name, signature, departureOf_##escaped.text},
#include "native_methods.inc"
#undef NATIVE_METHOD_ENTRY
};

struct Record {
  std::string header;
  std::string name;
  std::size_t bytes;
  const ClassMap* map;
};

const std::vector<Record> kRecords{
#define RECORD_ENTRY(header, Record) \
  {header, #Record, sizeof(Record), &quorvelj::ClassOf<Record>::kMap},
#include "record_entries.inc"
#undef RECORD_ENTRY
};

/// Where a method is defined, and how.
struct Definition {
  std::string family;
  std::string frame;
  std::string function;
};

std::string contentOf(const std::filesystem::path& path) {
  std::ifstream file(path);
  std::stringstream content;
  content << file.rdbuf();
  return content.str();
}

/// The definitions in the sources, by the method's name.
std::map<std::string, Definition> definitionsIn(const std::filesystem::path& directory) {
  static const std::regex kMethod(R"(NATIVE_METHOD\(\s*\w+,\s*(\w+)[^)]*\)\s*\{([\s\S]*?)\n?\}\n)");
  static const std::regex kFrame(
      R"(^\s*(?:return )?(query|queryAs|partialQuery|update|output|value)\(\s*env,)");
  static const std::regex kFunction(R"(\bQV_\w+)");
  std::map<std::string, Definition> definitions;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(directory)) {
    if (entry.path().extension() != ".cpp") {
      continue;
    }
    const std::string source = contentOf(entry.path());
    const std::string family =
        entry.path().parent_path().filename().string() + '/' + entry.path().stem().string();
    for (std::sregex_iterator at(source.begin(), source.end(), kMethod), end; at != end; ++at) {
      const std::string name = "QV_" + std::regex_replace((*at)[1].str(), std::regex("_1"), "_");
      const std::string body = (*at)[2].str();
      std::smatch frame;
      std::smatch function;
      definitions[name] = {family,
                           std::regex_search(body, frame, kFrame) ? frame[1].str() : "by hand",
                           std::regex_search(body, function, kFunction) ? function.str() : name};
    }
  }
  return definitions;
}

/// A JNI type as Java writes it.
std::string javaType(const std::string& signature) {
  const std::size_t rank = signature.find_first_not_of('[');
  std::string name = signature.substr(rank);
  if (name == "I") {
    name = "int";
  } else if (name == "B") {
    name = "byte";
  } else if (name == "V") {
    name = "void";
  } else {
    name = name.substr(name.rfind('/') + 1);
    name.pop_back();
  }
  for (std::size_t bracket = 0; bracket < rank; ++bracket) {
    name += "[]";
  }
  return name;
}

std::string javaArguments(const std::string& signature) {
  static const std::regex kType(R"(\[*(L[^;]+;|\w))");
  const std::string arguments = signature.substr(1, signature.find(')') - 1);
  std::string list;
  for (std::sregex_iterator at(arguments.begin(), arguments.end(), kType), end; at != end; ++at) {
    list += (list.empty() ? "" : ", ") + javaType(at->str());
  }
  return list;
}

std::string recordType(const Field& field) {
  static const std::map<FieldKind, std::string> kNames{
      {FieldKind::kInt32, "int32"}, {FieldKind::kInt8, "int8"},  {FieldKind::kUInt8, "uint8"},
      {FieldKind::kText, "char"},   {FieldKind::kBytes, "byte"},
  };
  const auto named = kNames.find(field.kind);
  std::string type = named != kNames.end()
                         ? named->second
                         : std::string(field.element->className)
                               .substr(std::string(field.element->className).rfind('/') + 1);
  for (std::size_t dimension = 0; dimension < field.rank; ++dimension) {
    type += '[' + std::to_string(field.extents[dimension]) + ']';
  }
  return field.kind == FieldKind::kText ? type + '[' + std::to_string(field.elementBytes) + ']'
                                        : type;
}

std::string reference(const std::filesystem::path& methods) {
  std::ostringstream out;
  out << "# Reference\n\nMade from the sources by `make reference`.\n\n## Native methods\n\n"
      << kMethods.size() << " methods of `DiskArrayUtilityJNI`. A method that is written out \"by "
      << "hand\" departs from the frames; the list behind the table says how.\n\n"
      << "| method | arguments | result | family | library function | frame |\n"
      << "|---|---|---|---|---|---|\n";
  const auto definitions = definitionsIn(methods);
  for (const Method& method : kMethods) {
    const auto found = definitions.find(method.name);
    if (found == definitions.end()) {
      std::fprintf(stderr, "no definition of %s was found\n", method.name.c_str());
      std::exit(1);
    }
    const Definition& definition = found->second;
    out << "| `" << method.name << "` | " << javaArguments(method.signature) << " | "
        << javaType(method.signature.substr(method.signature.find(')') + 1)) << " | "
        << definition.family << " | "
        << (definition.function == method.name ? "the same" : '`' + definition.function + '`')
        << " | " << definition.frame << " |\n";
  }
  out << "\n### Departures\n\n";
  for (const Method& method : kMethods) {
    if (!method.departs.empty()) {
      out << "- `" << method.name << "`: " << method.departs << ".\n";
    }
  }
  out << "\n## Records\n\n"
      << kRecords.size()
      << " records. Each has the Java class of its name, but for a part: its fields are fields of "
         "the "
         "Java object around it. Fields stand in the order in which they are filled.\n";
  std::string header;
  for (const Record& record : kRecords) {
    if (record.header != header) {
      header = record.header;
      out << "\n### arraylib/" << header << '\n';
    }
    const bool part = *record.map->className == '\0';
    out << "\n**`" << record.name << "`**, " << record.bytes << " bytes" << (part ? ", a part" : "")
        << "\n\n";
    if (record.map->fields.empty()) {
      out << "No field is known.\n";
      continue;
    }
    out << "| offset | member | Java field |\n|---|---|---|\n";
    for (const Field& field : record.map->fields) {
      out << "| " << field.offset << " | " << recordType(field) << " | `" << field.name << "` |\n";
    }
  }
  return out.str();
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2 && count != 4) {
    std::fputs("usage: reference METHODS_DIRECTORY [--compare FILE]\n", stderr);
    return 2;
  }
  const std::string text = reference(arguments[1]);
  if (count == 2) {
    std::fputs(text.c_str(), stdout);
    return 0;
  }
  if (text != contentOf(arguments[3])) {
    std::fputs("docs/reference.md is not what the sources say; run make reference\n", stderr);
    return 1;
  }
  return 0;
}
