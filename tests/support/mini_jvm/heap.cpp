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
  return field.owner == this || (parent != nullptr && parent->sees(field) &&
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

// The bridge asks by the same constants over and over. What an address named before is tried first,
// and compared by its text, because the texts of a test come and go.

Class* Heap::findClass(const char* name) {
  Class*& recent = recentClasses_[name];
  if (recent != nullptr && recent->name == name) {
    return recent;
  }
  std::unique_ptr<Class>& type = classes_[name];
  if (type == nullptr) {
    type = std::make_unique<Class>();
    type->name = name;
    type->mirror = make(nullptr);
    type->mirror->mirrored = type.get();
  }
  recent = type.get();
  return recent;
}

Member* Heap::findMember(Class* type, const char* name, const char* signature) {
  Member*& recent = type->recentMembers[name];
  if (recent != nullptr && recent->name == name && recent->signature == signature) {
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
        Member{name, signature, inherited + type->members.size() - 1, -1, type});
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
                        const std::string& signature, int madeLength) {
  Class* const type = findClass(className.c_str());
  type->declared = true;
  Member* const field = addMember(type, name, signature);
  field->madeLength = madeLength;
  if (madeLength >= 0) {
    type->made.push_back(field);
  }
}

bool Heap::isRemoved(std::string_view name) const {
  return !removed_.empty() && std::find(removed_.begin(), removed_.end(), name) != removed_.end();
}

Object* Heap::make(Class* type) {
  Object& object = objects_.emplace_back();
  object.type = type;
  return &object;
}

jobject Heap::refer(Object* object) {
  if (object == nullptr) {
    return nullptr;
  }
  mostReferences_ = std::max(mostReferences_, ++liveReferences_);
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
  if (resolve(reference) != nullptr) {
    auto* const dead = reinterpret_cast<Reference*>(reference);
    dead->live = false;
    deleted_.push_back(dead);
    --liveReferences_;
  }
}

}  // namespace quorvelj::testing::mini
