// Writes the catalogue: what the bridge knows of itself, from its class maps and from the
// prototypes of the library's functions. docs/catalogue.md describes it.
// Usage: catalogue VERSION EXPORTS CATALOGUE
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/class_map.h"
#include "bridge/departure.h"
#include "bridge/jni_toolkit.h"
#include "record_headers.inc"

#define NATIVE_METHOD_ENTRY(name, escaped, signature) \
  extern "C" const quorvelj::Departure departureOf_##escaped;
#include "native_methods.inc"
#undef NATIVE_METHOD_ENTRY

namespace {

using namespace quorvelj;

[[noreturn]] void fail(const std::string& message) {
  std::fprintf(stderr, "catalogue: %s\n", message.c_str());
  std::exit(1);
}

struct Record {
  const char* header;
  const char* name;
  int line;
  std::size_t bytes;
  const ClassMap* map;
  const char* assumedMembers;
  const char* secretMembers;
  /// The members that no Java field holds.
  std::vector<Field> reserved{};
};

template <class Type>
Record recordOf(const char* header, const char* name) {
  Record record{header,
                name,
                ClassOf<Type>::kLine,
                sizeof(Type),
                &ClassOf<Type>::kMap,
                kAssumedMembers<Type>,
                kSecretMembers<Type>};
  const auto& fields = record.map->fields;
  const auto add = [&](const Field& member) {
    if (!fields.empty() && std::none_of(fields.begin(), fields.end(), [&](const Field& field) {
          return field.offset == member.offset;
        })) {
      record.reserved.push_back(member);
    }
  };
  if constexpr (requires(Type & type) { type.reserved; }) {
    add(QUORVELJ_FIELD(Type, reserved));
  }
  if constexpr (requires(Type & type) { type.reserved0; }) {
    add(QUORVELJ_FIELD(Type, reserved0));
  }
  if constexpr (requires(Type & type) { type.reserved1; }) {
    add(QUORVELJ_FIELD(Type, reserved1));
  }
  return record;
}

const std::vector<Record>& records() {
  static const std::vector<Record> all{
#define RECORD_ENTRY(header, Record) recordOf<Record>(header, #Record),
#include "record_entries.inc"
#undef RECORD_ENTRY
  };
  return all;
}

std::string nameOf(const ClassMap* map) {
  for (const Record& record : records()) {
    if (record.map == map) {
      return record.name;
    }
  }
  fail("a record is in no header");
}

// Records

std::string kindOf(const Field& field) {
  switch (field.kind) {
    case FieldKind::kInt32:
      return "int32";
    case FieldKind::kInt8:
      return "int8";
    case FieldKind::kUInt8:
      return "uint8";
    case FieldKind::kText:
      return "text";
    case FieldKind::kBytes:
      return "bytes";
    case FieldKind::kRecord:
    case FieldKind::kPart:
      return nameOf(field.element);
  }
  std::abort();
}

std::string extentsOf(const Field& field) {
  std::string extents;
  for (std::size_t dimension = 0; dimension < field.rank; ++dimension) {
    extents += (dimension == 0 ? "" : "x") + std::to_string(field.extents[dimension]);
  }
  return extents.empty() ? "-" : extents;
}

std::size_t bytesOf(const Field& field) {
  std::size_t bytes = field.elementBytes;
  for (std::size_t dimension = 0; dimension < field.rank; ++dimension) {
    bytes *= field.extents[dimension];
  }
  return bytes;
}

std::set<std::string> splitAtCommas(const std::string& list) {
  std::istringstream words(list);
  std::set<std::string> names;
  for (std::string name; std::getline(words >> std::ws, name, ',');) {
    names.insert(name);
  }
  return names;
}

/// Whether a member must be marked as secret, by its name.
bool soundsSecret(const std::string& name) {
  const auto has = [&](const char* part) { return name.find(part) != std::string::npos; };
  return has("passw") || has("secret") || has("session_id");
}

void writeRecord(std::ostream& out, const Record& record) {
  const bool settled = record.assumedMembers == nullptr;
  std::set<std::string> assumed =
      settled ? std::set<std::string>{} : splitAtCommas(record.assumedMembers);
  const bool whole = !settled && assumed.empty();
  std::set<std::string> secret =
      splitAtCommas(record.secretMembers == nullptr ? "" : record.secretMembers);
  out << "record " << record.name << ' ' << record.header << ' ' << record.line << ' '
      << record.bytes << ' ' << (*record.map->className == '\0' ? "part" : "class") << ' '
      << (settled ? "confirmed"
          : whole ? "assumed"
                  : "partly")
      << '\n';

  struct Member {
    Field field;
    std::string filled;
  };
  std::vector<Member> members;
  for (const Field& field : record.map->fields) {
    members.push_back({field, std::to_string(members.size() + 1)});
  }
  for (const Field& field : record.reserved) {
    members.push_back({field, "reserved"});
  }
  std::sort(members.begin(), members.end(), [](const Member& left, const Member& right) {
    return left.field.offset < right.field.offset;
  });
  std::size_t end = 0;
  const auto fillUpTo = [&](std::size_t offset) {
    if (offset > end) {
      out << (members.empty() ? "unmapped " : "padding ") << end << ' ' << offset - end << '\n';
    }
  };
  for (const auto& [field, filled] : members) {
    fillUpTo(field.offset);
    const bool isAssumed = assumed.erase(field.name) > 0 || whole;
    const bool isSecret = secret.erase(field.name) > 0;
    const bool holdsText = field.kind == FieldKind::kText || field.kind == FieldKind::kBytes;
    if (holdsText && !isSecret && soundsSecret(field.name)) {
      fail(std::string(record.name) + "." + field.name + " is not marked by QUORVEL_SECRET");
    }
    out << "member " << field.offset << ' ' << field.elementBytes << ' ' << kindOf(field) << ' '
        << extentsOf(field) << ' ' << filled << ' ' << field.name << ' '
        << (isAssumed ? "assumed" : "confirmed") << (isSecret ? " secret" : "") << '\n';
    end = field.offset + bytesOf(field);
  }
  fillUpTo(record.bytes);
  if (!assumed.empty()) {
    fail(std::string(record.name) + " has no member " + *assumed.begin() +
         ", which is marked as assumed");
  }
  if (!secret.empty()) {
    fail(std::string(record.name) + " has no member " + *secret.begin() +
         ", which is marked as secret");
  }
}

// Native methods

struct Method {
  std::string name;
  std::string escaped;
  std::string signature;
  const Departure* departure;

  [[nodiscard]] std::string result() const { return signature.substr(signature.find(')') + 1); }
  [[nodiscard]] std::string function() const {
    return *departure->function == '\0' ? name : departure->function;
  }
};

const std::vector<Method> kMethods{
#define NATIVE_METHOD_ENTRY(name, escaped, signature) \
  {#name, #escaped, signature, &departureOf_##escaped},
#include "native_methods.inc"
#undef NATIVE_METHOD_ENTRY
};

void writeMethod(std::ostream& out, const Method& method, const std::string& symbol) {
  if (symbol.find('_' + method.escaped + '@') == std::string::npos) {
    fail(method.name + " is not exported as " + symbol);
  }
  const std::string result = method.result();
  out << "method " << method.name << ' ' << symbol << ' ' << method.signature << ' '
      << (result == "V"   ? "update"
          : result == "I" ? "value"
                          : "query")
      << ' ' << method.function() << '\n';
  if (*method.departure->text != '\0') {
    out << "departs " << method.departure->text << '\n';
  }
}

// Library functions

template <class Type>
std::string parameter() {
  if constexpr (std::is_same_v<Type, std::int32_t>) {
    return "int";
  } else {
    using Target = std::remove_pointer_t<Type>;
    using Element = std::remove_const_t<std::remove_all_extents_t<Target>>;
    constexpr bool kIsInput = std::is_const_v<std::remove_all_extents_t<Target>>;
    constexpr bool kIsArray = std::is_array_v<Target>;
    std::string what = kIsInput ? " in" : " out";
    if constexpr (std::is_same_v<Element, char>) {
      what = "text" + what;
    } else if constexpr (std::is_same_v<Element, std::byte>) {
      what = "bytes" + what;
    } else if constexpr (std::is_same_v<Element, std::int32_t>) {
      what = "int" + what;
    } else {
      what = "record" + what + ' ' + nameOf(&ClassOf<Element>::kMap);
    }
    return what + (kIsArray ? ' ' + std::to_string(std::extent_v<Target>) : "");
  }
}

template <class... Type>
void writeFunction(std::ostream& out, const char* header, const char* name, bool assumed,
                   int (*)(Type...)) {
  out << "function " << name << ' ' << header << ' ' << (assumed ? "assumed" : "confirmed") << '\n';
  (void(out << "parameter " << parameter<Type>() << '\n'), ...);
}

// Classes

/// The Java classes that the methods handle, with their fields in the order of their maps.
class Classes {
 public:
  Classes() {
    for (const Record& record : records()) {
      if (*record.map->className != '\0') {
        addFields(fields_[record.map->className], *record.map);
      }
    }
    for (const Method& method : kMethods) {
      const std::string arguments = method.signature.substr(0, method.signature.find(')'));
      std::string last;
      for (std::size_t at = 0; (at = arguments.find('L', at)) != std::string::npos; ++at) {
        const std::size_t end = arguments.find(';', at);
        last = arguments.substr(at + 1, end - at - 1);
        use(last, read_);
        at = end;
      }
      for (const ClassMap* map : method.departure->alsoReads) {
        addFields(fields_[last], *map);
        read_.insert(last);
        useMap(last, *map, read_);
      }
      const std::string result = method.result();
      if (const std::size_t at = result.find('L'); at != std::string::npos) {
        use(result.substr(at + 1, result.size() - at - 2), built_);
      }
    }
  }

  void write(std::ostream& out) const {
    for (const auto& [name, fields] : fields_) {
      const bool built = built_.contains(name);
      const bool read = read_.contains(name);
      out << "class " << name << ' '
          << (built  ? (read ? "both" : "built")
              : read ? "read"
                     : "none")
          << " ()V\n";
      for (const Field& field : fields) {
        out << "field " << field.name << ' ' << field.signature << '\n';
      }
    }
  }

 private:
  static void addFields(std::vector<Field>& fields, const ClassMap& map) {
    for (const Field& field : map.fields) {
      if (field.kind == FieldKind::kPart) {
        addFields(fields, *field.element);
      } else if (std::none_of(fields.begin(), fields.end(), [&](const Field& other) {
                   return std::strcmp(other.name, field.name) == 0;
                 })) {
        fields.push_back(field);
      }
    }
  }

  /// Notes the class and the classes inside it.
  void use(const std::string& className, std::set<std::string>& uses) {
    for (const Record& record : records()) {
      if (className == record.map->className && uses.insert(className).second) {
        useMap(className, *record.map, uses);
      }
    }
  }
  void useMap(const std::string& className, const ClassMap& map, std::set<std::string>& uses) {
    for (const Field& field : map.fields) {
      if (field.kind == FieldKind::kPart) {
        useMap(className, *field.element, uses);
      } else if (field.kind == FieldKind::kRecord) {
        use(field.element->className, uses);
      }
    }
  }

  std::map<std::string, std::vector<Field>> fields_;
  std::set<std::string> built_;
  std::set<std::string> read_;
};

/// The class of the native methods, from the name that one of them is exported under.
std::string nativeClass(const std::string& symbol) {
  constexpr std::string_view kPrefix = "_Java_";
  const std::size_t end = symbol.find('_' + std::string(kMethods[0].escaped) + '@');
  std::string name = symbol.substr(kPrefix.size(), end - kPrefix.size());
  std::replace(name.begin(), name.end(), '_', '/');
  return name;
}

std::string catalogue(const char* version, std::istream& exports) {
  std::vector<std::string> symbols(std::size(kMethods));
  for (std::string& symbol : symbols) {
    std::getline(exports, symbol);
  }
  std::ostringstream out;
  out << "quorvelj-catalogue 1\nbridge " << version << ' ' << nativeClass(symbols[0]) << '\n';
  for (const Record& record : records()) {
    writeRecord(out, record);
  }
  Classes().write(out);
  out << "class " << kArrayExceptionClass << " thrown " << kArrayExceptionConstructor << '\n';
#define FUNCTION_ENTRY(header, function, count) \
  writeFunction(out, header, #function, kAssumedFunction<function>, &function);
#include "function_entries.inc"
#undef FUNCTION_ENTRY
  for (auto symbol = symbols.begin(); const Method& method : kMethods) {
    if (out.view().find("\nfunction " + method.function() + ' ') == std::string_view::npos) {
      fail(method.name + " calls " + method.function() + ", which no header declares");
    }
    writeMethod(out, method, *symbol++);
  }
  return out.str();
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 4) {
    std::fputs("usage: catalogue VERSION EXPORTS CATALOGUE\n", stderr);
    return 2;
  }
  std::ifstream exports(arguments[2]);
  const std::string text = catalogue(arguments[1], exports);
  std::ofstream file(arguments[3]);
  file << text;
  file.close();
  return file ? 0 : 1;
}
