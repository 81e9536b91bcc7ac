#include "recorder/function.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <string_view>

#include "bridge/class_map.h"
#include "record_headers.inc"

namespace recorder {

using quorvelj::ClassMap;
using quorvelj::Field;
using quorvelj::FieldKind;

namespace {

/// The secret members of each record that has some.
const std::map<const ClassMap*, const char*>& secretMembers() {
  static const auto* const all = new std::map<const ClassMap*, const char*>{
#define RECORD_ENTRY(header, Record) \
  {&quorvelj::ClassOf<Record>::kMap, quorvelj::kSecretMembers<Record>},
#include "record_entries.inc"
#undef RECORD_ENTRY
  };
  return *all;
}

bool isSecret(const ClassMap& map, const char* member) {
  const auto found = secretMembers().find(&map);
  if (found == secretMembers().end() || found->second == nullptr) {
    return false;
  }
  const std::string list = std::string(", ") + found->second + ',';
  return list.find(std::string(" ") + member + ',') != std::string::npos;
}

bool hasSecrets(const ClassMap& map) {
  return std::any_of(map.fields.begin(), map.fields.end(), [&](const Field& field) {
    return isSecret(map, field.name) || (field.element != nullptr && hasSecrets(*field.element));
  });
}

void addMembers(std::vector<Range>& ranges, const ClassMap& map, std::size_t base, bool secret,
                bool isElement = false) {
  for (const Field& field : map.fields) {
    std::size_t count = 1;
    for (std::size_t dimension = 0; dimension < field.rank; ++dimension) {
      count *= field.extents[dimension];
    }
    const bool isRecord = field.kind == FieldKind::kRecord || field.kind == FieldKind::kPart;
    if (isRecord ? secret && !hasSecrets(*field.element) : secret != isSecret(map, field.name)) {
      continue;
    }
    const std::size_t start = base + field.offset;
    const bool inArray = isElement || count > 1;
    if (!isRecord && field.kind != FieldKind::kText) {
      ranges.push_back({start, count * field.elementBytes, false, inArray});
      continue;
    }
    for (std::size_t element = 0; element < count; ++element) {
      const std::size_t at = start + element * field.elementBytes;
      if (isRecord) {
        addMembers(ranges, *field.element, at, secret, inArray);
      } else {
        ranges.push_back({at, field.elementBytes, true, inArray});
      }
    }
  }
}

std::vector<Range> rangesOf(const Parameter& parameter, std::size_t bytes, bool secret) {
  std::vector<Range> ranges;
  if (parameter.map == nullptr) {
    if (secret == parameter.isSecret) {
      ranges.push_back({0, bytes, parameter.isText, false});
    }
  } else if (!secret || hasSecrets(*parameter.map)) {
    for (std::size_t at = 0; at < bytes; at += parameter.elementBytes) {
      addMembers(ranges, *parameter.map, at, secret);
    }
  }
  return ranges;
}

}  // namespace

std::size_t Function::bytesOf(std::size_t parameter, void* const* values) const {
  const Parameter& known = parameters[parameter];
  if (values[parameter] == nullptr) {
    return 0;
  }
  if (known.bytes == 0) {
    return std::strlen(static_cast<const char*>(values[parameter])) + 1;
  }
  if (countParameter >= 0 && parameter + 1 == parameters.size()) {
    const auto count = *static_cast<const std::int32_t*>(values[countParameter]);
    return count < 0 ? 0 : static_cast<std::size_t>(count) * known.bytes;
  }
  return known.bytes;
}

std::vector<Range> secretsOf(const Parameter& parameter, std::size_t bytes) {
  return rangesOf(parameter, bytes, true);
}

std::vector<Range> plainOf(const Parameter& parameter, std::size_t bytes) {
  return rangesOf(parameter, bytes, false);
}

std::string valueOf(const void* block, const Range& range) {
  const char* const start = static_cast<const char*>(block) + range.offset;
  std::string_view value(start, range.bytes);
  value = range.isText ? value.substr(0, value.find('\0'))
                       : value.substr(0, value.find_last_not_of('\0') + 1);
  return std::string(value);
}

}  // namespace recorder
