#pragma once

#include <jni.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// The objects and classes of the mini JVM, and the local references to them.
namespace quorvelj::testing::mini {

struct Class;
struct Object;

/// A field or a method.
struct Member {
  /// The class that declares it.
  Class* type;
  std::string name;
  std::string signature;
  /// The place of a field's value in the slots of an object.
  std::size_t index;
  /// What the constructor makes, if anything: the lengths of arrays, or one number.
  std::vector<std::size_t> made{};

  [[nodiscard]] bool holdsObject() const { return signature[0] == 'L' || signature[0] == '['; }
};

struct Class {
  std::string name;  // slash form
  /// The superclass, which must be a declared one; null for none.
  Class* parent = nullptr;
  std::map<std::string, std::unique_ptr<Member>> members;
  /// The fields that the constructor makes.
  std::vector<Member*> made;
  /// The class has its declared fields and no others.
  bool declared = false;
  Object* mirror = nullptr;

  /// Whether a look-up in this class finds the field: it is the class's own or a superclass's, and
  /// nothing in between hides it.
  [[nodiscard]] bool sees(const Member& field) const;

  /// Objects of the class that are no more.
  std::vector<Object*> recycled{};
};

/// The value of a field.
struct Slot {
  bool set = false;
  jint number = 0;
  Object* object = nullptr;
};

struct Object {
  Class* type = nullptr;
  /// The class whose java.lang.Class object this is, or null.
  Class* mirrored = nullptr;
  /// The fields follow the input profile until they are set.
  bool input = false;
  /// Held by another object or by a test.
  bool held = false;
  /// Local references to it.
  int references = 0;
  std::vector<Slot> slots;
  std::variant<std::monostate, std::string, std::vector<jint>, std::vector<jbyte>,
               std::vector<jshort>, std::vector<Object*>>
      payload;

  /// What a string or an array holds; null in an object of another kind.
  template <class Payload>
  Payload* get() {
    return std::get_if<Payload>(&payload);
  }
  std::string* text() { return get<std::string>(); }
  std::vector<Object*>* elements() { return get<std::vector<Object*>>(); }
  [[nodiscard]] std::size_t length() const;

  Slot& slot(const Member& field) {
    if (slots.size() <= field.index) {
      slots.resize(std::max(type->members.size(), field.index + 1));
    }
    return slots[field.index];
  }
  /// The field of this name that was set, or null.
  Slot* findSet(std::string_view name);
};

class Heap {
 public:
  /// The class of a name in slash form, which is made at the first request.
  Class* findClass(const char* name);
  /// The member of a class or of its superclasses, which is made at the first request; null for a
  /// field that a declared class does not have.
  Member* findMember(Class* type, const char* name, const char* signature);
  /// Adds a field to a declared class.
  void declareField(const std::string& className, const std::string& name,
                    const std::string& signature, const std::vector<std::size_t>& made);
  /// A new subclass of a declared class, with no fields of its own yet.
  Class* derive(Class* parent);
  /// Adds a field or a method to a class.
  Member* addMember(Class* type, const std::string& name, const std::string& signature);
  /// Makes a class or every member of a name impossible to find.
  void remove(const std::string& name) { removed_.push_back(name); }
  [[nodiscard]] bool isRemoved(std::string_view name) const;

  Object* make(Class* type);
  /// The same, as its constructor leaves it.
  Object* construct(Class* type);
  template <class Payload>
  Object* make(const char* className, Payload payload) {
    Object* const object = make(findClass(className));
    object->payload = std::move(payload);
    return object;
  }
  /// An array of equal elements.
  template <class Element>
  Object* makeArray(const char* className, std::size_t length, Element element) {
    Object* const object = make(findClass(className));
    if (auto* const used = object->get<std::vector<Element>>()) {
      used->assign(length, element);
    } else {
      object->payload = std::vector<Element>(length, element);
    }
    return object;
  }

  /// Lets the objects that native code makes go when their last local reference does: what it
  /// stores is not to be had.
  void forgetResults() { forgets_ = true; }
  /// What a field or an array keeps of a value that native code stores there.
  Object* keep(Object* value) {
    if (value != nullptr && forgets_ && !value->held) {
      return nullptr;
    }
    return hold(value);
  }
  static Object* hold(Object* value) {
    if (value != nullptr) {
      value->held = true;
    }
    return value;
  }
  /// The int that java/lang/Integer and DiskArrayException are made with.
  Slot& codeOf(Object* object) { return object->slot(*findMember(object->type, "code", "I")); }

  /// A new local reference; null for null.
  jobject refer(Object* object);
  /// The object of a live reference. Any other reference is a misuse, and null.
  Object* resolve(jobject reference) {
    const auto* const known = reinterpret_cast<Reference*>(reference);
    if (known == nullptr || !known->live) {
      ++misuses_;
      return nullptr;
    }
    return known->object;
  }
  void deleteReference(jobject reference);

  void countMisuse() { ++misuses_; }
  [[nodiscard]] int misuses() const { return misuses_; }
  [[nodiscard]] int liveReferences() const { return liveReferences_; }
  [[nodiscard]] int mostReferences() const { return mostReferences_; }

 private:
  struct Reference {
    Object* object;
    bool live;
  };

  void recycle(Object* object);
  /// A value of a field as a constructor makes it.
  Object* makeInitial(const std::string& signature, const std::size_t* lengths);

  static constexpr std::size_t kRecent = 4096;
  std::map<std::string, std::unique_ptr<Class>> classes_;
  std::array<Class*, kRecent> recentClasses_{};
  std::array<Member*, kRecent> recentMembers_{};
  bool forgets_ = false;
  std::vector<std::string> removed_;
  std::deque<Object> objects_;
  std::deque<Reference> references_;
  std::deque<Reference*> deleted_;
  int liveReferences_ = 0;
  int mostReferences_ = 0;
  int misuses_ = 0;
};

}  // namespace quorvelj::testing::mini
