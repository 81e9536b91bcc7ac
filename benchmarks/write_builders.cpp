// Prints the builders and readers of written_out.h: from the maps of the calls that are compared, a
// function for each class and a line for each field, as somebody would write them who had no maps.
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>

#include "arraylib/all_information.h"
#include "arraylib/performance.h"
#include "bridge/class_map.h"

namespace {

using quorvelj::ClassMap;
using quorvelj::ClassOf;
using quorvelj::Field;
using quorvelj::FieldKind;

bool isInt(const Field& field) { return field.rank == 0 && field.kind <= FieldKind::kUInt8; }

std::string simpleName(const ClassMap& map) {
  const std::string name = map.className;
  return name.substr(name.rfind('/') + 1);
}

/// How a form names fields and classes: as texts, or as what is kept of them.
class Form {
 public:
  virtual ~Form() = default;
  virtual std::string field(const ClassMap& owner, const Field& field) = 0;
  /// The class of new objects.
  virtual std::string object(const ClassMap& map) = 0;
  /// The class of an array's elements.
  virtual std::string element(const std::string& className) = 0;
  /// What stands behind a row of ints.
  virtual std::string behindInts() = 0;
  /// What stands before the lines of a reader.
  virtual std::string guard(const ClassMap& map) = 0;
};

class ByName : public Form {
 public:
  std::string field(const ClassMap&, const Field& field) override {
    return std::string("Name{\"") + field.name + "\", \"" + field.signature + "\"}";
  }
  std::string object(const ClassMap& map) override { return element(map.className); }
  std::string element(const std::string& className) override { return '"' + className + '"'; }
  std::string behindInts() override { return ""; }
  std::string guard(const ClassMap&) override { return ""; }
};

class Kept : public Form {
 public:
  std::string field(const ClassMap& owner, const Field& field) override {
    const std::string name = simpleName(owner) + '_' + field.name;
    declare("jfieldID", name,
            "keepField(env, " + object(owner) + ", \"" + field.name + "\", \"" + field.signature +
                "\")");
    return name;
  }
  std::string object(const ClassMap& map) override {
    const std::string name = "classOf" + simpleName(map);
    declare("KeptClass", name + "{}", "");
    const std::string type = name + ".type";
    if (seen_.insert(type).second) {
      lookUps_ += "  " + type + " = keepClass(env, \"" + map.className + "\");\n  " + name +
                  ".constructor = env->GetMethodID(" + type + ", \"<init>\", \"()V\");\n";
    }
    return name;
  }
  std::string element(const std::string& className) override {
    std::string name = "elementClass_";
    for (const char letter : className) {
      name += std::isalnum(static_cast<unsigned char>(letter)) != 0 ? letter : '_';
    }
    declare("jclass", name, "keepClass(env, \"" + className + "\")");
    return name;
  }
  std::string behindInts() override { return " &&\n      !excepted(env)"; }
  std::string guard(const ClassMap& map) override {
    return "  if (!isOf(env, object, " + object(map) + ")) {\n    return by_name::read" +
           simpleName(map) + "(env, object, record);\n  }\n";
  }

  void printDeclarations() const { std::puts(declarations_.c_str()); }
  void printLookUps() const {
    std::printf("inline void lookUp(JNIEnv* env) {\n%s}\n\n", lookUps_.c_str());
  }

 private:
  void declare(const std::string& type, const std::string& name, const std::string& lookUp) {
    if (seen_.insert(name).second) {
      declarations_ += "inline " + type + ' ' + name + ";\n";
      if (!lookUp.empty()) {
        lookUps_ += "  " + name + " = " + lookUp + ";\n";
      }
    }
  }

  std::set<std::string> seen_;
  std::string declarations_;
  std::string lookUps_;
};

/// Writes the functions of one form.
class Writer {
 public:
  explicit Writer(Form& form) : form_(form) {}

  /// The functions of a class behind those of its elements.
  void write(const ClassMap& map, bool reads) {
    if (!written_.insert({&map, reads}).second) {
      return;
    }
    for (const Field& field : map.fields) {
      if (field.element != nullptr) {
        write(*field.element, reads);
      }
    }
    const std::string name = simpleName(map);
    if (reads) {
      text_ += "inline bool read" + name + "(JNIEnv* env, jobject object, " + name +
               "& record) {\n" + form_.guard(map) + "  return true";
    } else {
      text_ += "inline jobject build" + name + "(JNIEnv* env, [[maybe_unused]] const " + name +
               "& record) {\n  const jobject object = newObject(env, " + form_.object(map) +
               ");\n  return object != nullptr";
    }
    for (const Field& field : map.fields) {
      text_ += " &&\n      " + (reads ? load(map, field) : store(map, field));
      if (isInt(field) && (&field == &map.fields.back() || !isInt((&field)[1]))) {
        text_ += form_.behindInts();
      }
    }
    text_ += reads ? ";\n}\n\n" : "\n    ? object : nullptr;\n}\n\n";
  }

  [[nodiscard]] const std::string& text() const { return text_; }

 private:
  /// The array of records at `value`, of which the last `rank` dimensions are left.
  std::string newObjects(const Field& field, std::size_t rank, const std::string& env,
                         const std::string& value) {
    const std::string elementClass =
        rank == 1 ? field.element->className : field.signature + (field.rank - rank) + 1;
    const std::string make = rank == 1 ? "build" + simpleName(*field.element)
                                       : "[](JNIEnv* jni, const auto& row) { return " +
                                             newObjects(field, rank - 1, "jni", "row") + "; }";
    return "newObjects(" + env + ", " + form_.element(elementClass) + ", " + value + ", " + make +
           ")";
  }

  std::string store(const ClassMap& owner, const Field& field) {
    const std::string value = std::string("record.") + field.name;
    const std::string in = "(env, object, " + form_.field(owner, field) + ", ";
    switch (field.kind) {
      case FieldKind::kText:
        return field.rank == 0 ? "setText" + in + value + ")"
                               : "setObject" + in + "newTexts(env, " +
                                     form_.element("java/lang/String") + ", " + value + "))";
      case FieldKind::kRecord:
        return "setObject" + in +
               (field.rank == 0 ? "build" + simpleName(*field.element) + "(env, " + value + ")"
                                : newObjects(field, field.rank, "env", value)) +
               ")";
      case FieldKind::kPart:
        refuse(field);
      default: {
        if (field.rank == 0) {
          return "setInt" + in + value + ")";
        }
        if (field.kind == FieldKind::kBytes && field.rank == 1) {
          return "setBytes" + in + value + ")";
        }
        std::string inner;
        for (std::size_t dimension = 1; dimension < field.rank; ++dimension) {
          inner += ", " + form_.element(field.signature + dimension);
        }
        return "setObject" + in + "newNumbers(env, " + value + inner + "))";
      }
    }
  }

  std::string load(const ClassMap& owner, const Field& field) {
    const std::string in = "(env, object, " + form_.field(owner, field) + ", record." + field.name;
    switch (field.kind) {
      case FieldKind::kInt32:
        return (field.rank == 0 ? "getInt" : "getNumbers") + in + ")";
      case FieldKind::kBytes:
        return "getNumbers" + in + ")";
      case FieldKind::kText:
        return "getText" + in + ")";
      case FieldKind::kRecord:
        return "getRecord" + in + ", read" + simpleName(*field.element) + ")";
      default:
        refuse(field);
    }
  }

  [[noreturn]] static void refuse(const Field& field) {
    std::fprintf(stderr, "write_builders: there is no line for the kind of %s\n", field.name);
    std::exit(1);
  }

  Form& form_;
  std::set<std::pair<const ClassMap*, bool>> written_;
  std::string text_;
};

std::string functions(Form& form) {
  Writer writer(form);
  writer.write(ClassOf<ArrayAllInformation>::kMap, false);
  writer.write(ClassOf<Threshold>::kMap, false);
  writer.write(ClassOf<PerformanceAll>::kMap, false);
  writer.write(ClassOf<PerformanceAll>::kMap, true);
  writer.write(ClassOf<PerformanceOutputAllRequest>::kMap, true);
  return writer.text();
}

}  // namespace

int main() {
  ByName byName;
  std::printf("namespace by_name {\n%s}  // namespace by_name\n\n", functions(byName).c_str());
  Kept kept;
  const std::string text = functions(kept);
  std::puts("namespace kept {");
  kept.printDeclarations();
  kept.printLookUps();
  std::printf("%s}  // namespace kept\n", text.c_str());
}
