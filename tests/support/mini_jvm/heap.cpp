#include "tests/support/mini_jvm/heap.h"

#include <algorithm>
#include <type_traits>

namespace quorvelj::testing::mini {

namespace {

std::string keyOf(const std::string& name, const std::string& signature) {
  return name + ' ' + signature;
}

}  // namespace

bool Class::sees(const Member& field) const {
  return field.type == this || (parent != nullptr && parent->sees(field) &&
                                !members.contains(keyOf(field.name, field.signature)));
}

std::size_t Object::length() const {
  return std::visit(
      [](const auto& value) -> std::size_t {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::monostate>) {
          return 0;
        } else {
          return value.size();
        }
      },
      payload);
}

Slot* Object::findSet(std::string_view name) {
  for (const auto& [key, member] : type->members) {
    if (member->name == name && slot(*member).set) {
      return &slot(*member);
    }
  }
  return nullptr;
}

namespace {

/// A place among the recent ones for what the text at this address names.
std::size_t placeOf(const char* name, const void* within, std::size_t places) {
  // Multiplied by 2^32 over the golden ratio, neighbours lie far apart.
  const auto mixed = static_cast<std::uint32_t>(
      (reinterpret_cast<std::uintptr_t>(name) + 31 * reinterpret_cast<std::uintptr_t>(within)) *
      2654435769U);
  return (mixed >> 16) % places;
}

/// Without a call: sanitizers look at every byte that the C runtime's comparison is given.
bool same(const std::string& known, const char* text) {
  const char* left = known.c_str();
  for (; *left == *text; ++left, ++text) {
    if (*left == '\0') {
      return true;
    }
  }
  return false;
}

}  // namespace

// The bridge asks by the same constants over and over. What an address named before is tried first,
// and compared by its text, because the texts of a test come and go.

Class* Heap::findClass(const char* name) {
  Class*& recent = recentClasses_[placeOf(name, nullptr, kRecent)];
  if (recent != nullptr && same(recent->name, name)) {
    return recent;
  }
  std::unique_ptr<Class>& type = classes_[name];
  if (type == nullptr) {
    type = std::make_unique<Class>();
    type->name = name;
    type->mirror = make(nullptr);
    type->mirror->mirrored = type.get();
    type->mirror->held = true;
  }
  recent = type.get();
  return recent;
}

Member* Heap::findMember(Class* type, const char* name, const char* signature) {
  Member*& recent = recentMembers_[placeOf(name, type, kRecent)];
  if (recent != nullptr && recent->type == type && same(recent->name, name) &&
      same(recent->signature, signature)) {
    return recent;
  }
  const auto found = type->members.find(keyOf(name, signature));
  if (found != type->members.end()) {
    return recent = found->second.get();
  }
  if (*signature == '(') {
    return recent = addMember(type, name, signature);
  }
  if (type->parent != nullptr) {
    return recent = findMember(type->parent, name, signature);
  }
  return recent = type->declared ? nullptr : addMember(type, name, signature);
}

Member* Heap::addMember(Class* type, const std::string& name, const std::string& signature) {
  // The slots of a subclass lie behind those of its superclass, to which only methods are added.
  const std::size_t inherited = type->parent == nullptr ? 0 : type->parent->members.size();
  std::unique_ptr<Member>& member = type->members[keyOf(name, signature)];
  if (member == nullptr) {
    member = std::make_unique<Member>(
        Member{type, name, signature, inherited + type->members.size() - 1});
  }
  return member.get();
}

Class* Heap::derive(Class* parent) {
  Class* const type = findClass(("Subclass" + std::to_string(classes_.size())).c_str());
  type->parent = parent;
  type->declared = true;
  return type;
}

void Heap::declareField(const std::string& className, const std::string& name,
                        const std::string& signature, const std::vector<std::size_t>& made) {
  Class* const type = findClass(className.c_str());
  type->declared = true;
  Member* const field = addMember(type, name, signature);
  field->made = made;
  if (!made.empty()) {
    type->made.push_back(field);
  }
}

bool Heap::isRemoved(std::string_view name) const {
  return !removed_.empty() && std::find(removed_.begin(), removed_.end(), name) != removed_.end();
}

Object* Heap::make(Class* type) {
  if (type != nullptr && !type->recycled.empty()) {
    Object* const object = type->recycled.back();
    type->recycled.pop_back();
    return object;
  }
  Object& object = objects_.emplace_back();
  object.type = type;
  return &object;
}

Object* Heap::construct(Class* type) {
  Object* const object = make(type);
  for (const Member* const member : type->made) {
    object->slot(*member) = {true, 0, hold(makeInitial(member->signature, member->made.data()))};
  }
  return object;
}

Object* Heap::makeInitial(const std::string& signature, const std::size_t* lengths) {
  if (signature == "Ljava/lang/String;") {
    return make("java/lang/String", std::string());
  }
  if (signature[0] == 'L') {
    return construct(findClass(signature.substr(1, signature.size() - 2).c_str()));
  }
  if (signature == "[I") {
    return makeArray("[I", *lengths, jint{0});
  }
  if (signature == "[B") {
    return makeArray("[B", *lengths, jbyte{0});
  }
  std::vector<Object*> elements(*lengths);
  for (Object*& element : elements) {
    element = hold(makeInitial(signature.substr(1), lengths + 1));
  }
  return make(signature.c_str(), std::move(elements));
}

void Heap::recycle(Object* object) {
  object->held = false;
  for (const Slot& slot : object->slots) {
    // Of what native code stored nothing is kept: these are the arrays of the constructor.
    if (slot.object != nullptr && slot.object->references == 0) {
      recycle(slot.object);
    }
  }
  object->slots.clear();
  object->type->recycled.push_back(object);
}

jobject Heap::refer(Object* object) {
  if (object == nullptr) {
    return nullptr;
  }
  mostReferences_ = std::max(mostReferences_, ++liveReferences_);
  ++object->references;
  // A deleted reference stays dead for a while, so that its use is noticed.
  constexpr std::size_t kStaysDead = 4096;
  if (deleted_.size() < kStaysDead) {
    return reinterpret_cast<jobject>(&references_.emplace_back(Reference{object, true}));
  }
  Reference* const reused = deleted_.front();
  deleted_.pop_front();
  *reused = {object, true};
  return reinterpret_cast<jobject>(reused);
}

void Heap::deleteReference(jobject reference) {
  Object* const object = resolve(reference);
  if (object != nullptr) {
    auto* const dead = reinterpret_cast<Reference*>(reference);
    dead->live = false;
    deleted_.push_back(dead);
    --liveReferences_;
    if (--object->references == 0 && forgets_ && !object->held) {
      recycle(object);
    }
  }
}

}  // namespace quorvelj::testing::mini
