#pragma once

#include <jni.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bridge/class_map.h"
#include "simulator/control.h"

// A real Java virtual machine, and what the library answers with in it.

/// Starts the machine of this process. All of its heap is touched at the start, so that what a call
/// adds to the process is not the heap's growth.
inline JNIEnv* startMachine(const std::string& classPath, std::vector<std::string> options) {
  options.push_back("-Djava.class.path=" + classPath);
  options.emplace_back("-XX:+AlwaysPreTouch");
  std::vector<JavaVMOption> given;
  for (std::string& option : options) {
    given.push_back({option.data(), nullptr});
  }
  JavaVMInitArgs arguments{JNI_VERSION_1_8, static_cast<jint>(given.size()), given.data(),
                           JNI_FALSE};
  JavaVM* machine = nullptr;
  JNIEnv* started = nullptr;
  if (JNI_CreateJavaVM(&machine, reinterpret_cast<void**>(&started), &arguments) != JNI_OK) {
    std::abort();
  }
  return started;
}

/// Lets go of what a call built; ends the process where it built nothing.
inline void release(JNIEnv* env, jobject built) {
  if (built == nullptr || env->ExceptionCheck() == JNI_TRUE) {
    env->ExceptionDescribe();
    std::abort();
  }
  env->DeleteLocalRef(built);
}

inline void fillTexts(const quorvelj::ClassMap& map, std::byte* record) {
  for (const quorvelj::Field& field : map.fields) {
    std::size_t elements = 1;
    for (std::size_t dimension = 0; dimension < field.rank; ++dimension) {
      elements *= field.extents[dimension];
    }
    for (std::size_t index = 0; index < elements; ++index) {
      std::byte* const element = record + field.offset + index * field.elementBytes;
      if (field.element != nullptr) {
        fillTexts(*field.element, element);
      } else if (field.kind == quorvelj::FieldKind::kText) {
        std::snprintf(reinterpret_cast<char*>(element), field.elementBytes, "%s", "of this unit");
      }
    }
  }
}

/// Makes the library answer a function with texts everywhere and zeros as numbers.
template <class Output>
void prepare(const char* function) {
  using Record = std::remove_all_extents_t<Output>;
  std::vector<std::byte> answer(sizeof(Output));
  for (std::size_t offset = 0; offset < answer.size(); offset += sizeof(Record)) {
    fillTexts(quorvelj::ClassOf<Record>::kMap, answer.data() + offset);
  }
  quorvelSimPrepareOutput(function, answer.data(), answer.size());
}
