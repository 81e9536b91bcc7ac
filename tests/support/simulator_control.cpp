// The simulator's control interface for Java: the native methods of the class `Simulator`.
#include <jni.h>

#include <string>

#include "simulator/control.h"

namespace {

std::string copyOf(JNIEnv* env, jstring text) {
  const char* const characters = env->GetStringUTFChars(text, nullptr);
  std::string copy = characters;
  env->ReleaseStringUTFChars(text, characters);
  return copy;
}

jint JNICALL calls(JNIEnv* env, jclass, jstring function) {
  return quorvelSimCallCount(copyOf(env, function).c_str());
}

void JNICALL force(JNIEnv* env, jclass, jstring function, jint result, jint times) {
  quorvelSimForceResult(copyOf(env, function).c_str(), result, times);
}

void JNICALL prepare(JNIEnv* env, jclass, jstring function, jbyteArray answer) {
  jbyte* const bytes = env->GetByteArrayElements(answer, nullptr);
  quorvelSimPrepareOutput(copyOf(env, function).c_str(), bytes,
                          static_cast<std::size_t>(env->GetArrayLength(answer)));
  env->ReleaseByteArrayElements(answer, bytes, JNI_ABORT);
}

}  // namespace

JNIEXPORT jint JNICALL JNI_OnLoad(JavaVM* jvm, void*) {
  constexpr jint kVersion = JNI_VERSION_1_8;
  void* found = nullptr;
  if (jvm->GetEnv(&found, kVersion) != JNI_OK) {
    return JNI_ERR;
  }
  auto* const env = static_cast<JNIEnv*>(found);
  char callsName[] = "calls";
  char callsSignature[] = "(Ljava/lang/String;)I";
  char forceName[] = "force";
  char forceSignature[] = "(Ljava/lang/String;II)V";
  char prepareName[] = "prepare";
  char prepareSignature[] = "(Ljava/lang/String;[B)V";
  const JNINativeMethod methods[] = {
      {callsName, callsSignature, reinterpret_cast<void*>(&calls)},
      {forceName, forceSignature, reinterpret_cast<void*>(&force)},
      {prepareName, prepareSignature, reinterpret_cast<void*>(&prepare)},
  };
  return env->RegisterNatives(env->FindClass("Simulator"), methods, 3) == JNI_OK ? kVersion
                                                                                 : JNI_ERR;
}
