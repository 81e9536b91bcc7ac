// The interpreter on a record that has a member of every type. How each is built, the records of
// the families show as well; only some are read there.
#include "bridge/class_map.h"

#include <gtest/gtest.h>

#include <cstring>

#include "tests/support/mini_jvm.h"
#include "tests/support/test_runtime.h"

struct Inner {
  std::int32_t number;
  char text[4];
};
QUORVEL_RECORD(Inner, 8);

struct Sampler {
  std::int32_t word;
  std::int8_t negative;
  std::uint8_t positive;
  char text[5];
  char texts[2][3];
  std::int32_t words[2];
  std::int32_t grid[2][2];
  std::int8_t bytes[2];
  std::int8_t byteGrid[2][2];
  std::byte raw[3];
  Inner inner;
  Inner list[2];
  Inner table[2][2];
  Inner cube[1][1][2];
};
QUORVEL_RECORD(Sampler, 128);

struct RawCube {
  std::byte raw[1][2][2];
};
QUORVEL_RECORD(RawCube, 4);

struct Head {
  Inner inner;
  std::int32_t word;
};
QUORVEL_PART(Head, 12);

struct Headed {
  std::int32_t first;
  Head head;
  std::int32_t tail;
};
QUORVEL_RECORD(Headed, 20);

QUORVELJ_CLASS(Head, word, inner);
QUORVELJ_CLASS(Headed, head, first, tail);
QUORVELJ_CLASS(Inner, number, text);
QUORVELJ_CLASS(RawCube, raw);
QUORVELJ_CLASS(Sampler, word, negative, positive, text, texts, words, grid, bytes, byteGrid, raw,
               inner, list, table, cube);

namespace quorvelj::testing {
namespace {

Sampler sample() {
  Sampler record{};
  auto* const bytes = reinterpret_cast<unsigned char*>(&record);
  for (std::size_t index = 0; index < sizeof record; ++index) {
    bytes[index] = static_cast<unsigned char>(0x80 + index);
  }
  return record;
}

class ClassMapTest : public ::testing::Test {
 protected:
  ClassMapTest() { resetTestRuntime(); }

  MiniJvm jvm_;
};

TEST_F(ClassMapTest, ATextEndsAtItsNulOrWhereItsMemberDoes) {
  Sampler record = sample();
  const std::string slots("a\0?bcd", sizeof record.texts);
  slots.copy(&record.texts[0][0], sizeof record.texts);
  const jobject object = build(jvm_.env(), ClassOf<Sampler>::kMap, &record);
  JNIEnv* const env = jvm_.env();
  const auto texts = jvm_.elementsOf(jvm_.objectOf(object, "texts"));
  EXPECT_STREQ(env->GetStringUTFChars(static_cast<jstring>(texts[0]), nullptr), "a");
  EXPECT_STREQ(env->GetStringUTFChars(static_cast<jstring>(texts[1]), nullptr), "bcd");
}

TEST_F(ClassMapTest, ReadsBackWhatItBuilt) {
  const Sampler record = sample();
  const jobject object = build(jvm_.env(), ClassOf<Sampler>::kMap, &record);
  Sampler copy{};
  EXPECT_EQ(read(jvm_.env(), ClassOf<Sampler>::kMap, object, &copy), 0);
  EXPECT_EQ(static_cast<std::uint32_t>(copy.word), 0x83828180U);
  EXPECT_EQ(copy.negative, record.negative);
  EXPECT_EQ(copy.positive, record.positive);
  EXPECT_EQ(std::string(copy.text, 5), std::string("\x86\x87\x88\x89\0", 5));
  EXPECT_EQ(std::string(copy.texts[1], 3), std::string("\x8E\x8F\0", 3));
  EXPECT_EQ(std::memcmp(copy.words, record.words, sizeof copy.words), 0);
  EXPECT_EQ(std::memcmp(copy.grid, record.grid, sizeof copy.grid), 0);
  EXPECT_EQ(std::memcmp(copy.bytes, record.bytes, sizeof copy.bytes), 0);
  EXPECT_EQ(std::memcmp(copy.byteGrid, record.byteGrid, sizeof copy.byteGrid), 0);
  EXPECT_EQ(std::memcmp(copy.raw, record.raw, sizeof copy.raw), 0);
  EXPECT_EQ(copy.inner.number, record.inner.number);
  EXPECT_EQ(copy.list[1].number, record.list[1].number);
  EXPECT_EQ(copy.table[1][1].number, record.table[1][1].number);
  EXPECT_STREQ(copy.table[1][1].text, "\xEC\xED\xEE");
  EXPECT_EQ(copy.cube[0][0][1].number, record.cube[0][0][1].number);
  RawCube cube{};
  const jobject built = build(jvm_.env(), ClassOf<RawCube>::kMap, &cube);
  EXPECT_EQ(read(jvm_.env(), ClassOf<RawCube>::kMap, built, &cube), 2817) << "it is only built";
  EXPECT_EQ(jvm_.bytesOf(jvm_.objectOf(object, "raw")).size(), 8192U)
      << "the array at hand is filled, not replaced";
}

TEST_F(ClassMapTest, ShortArraysAndNullElementsLeaveTheRest) {
  jvm_.profile.objects = 2;
  const jobject object = jvm_.newInput();
  const jobjectArray list =
      jvm_.env()->NewObjectArray(1, jvm_.env()->FindClass("tessaly/str/diskarray/Inner"), nullptr);
  jvm_.setObject(object, "list", "[Ltessaly/str/diskarray/Inner;", list);
  Sampler record = sample();
  EXPECT_EQ(read(jvm_.env(), ClassOf<Sampler>::kMap, object, &record), 0);
  EXPECT_EQ(std::memcmp(record.list, sample().list, sizeof record.list), 0);
  EXPECT_NE(std::memcmp(record.table, sample().table, sizeof record.table), 0);
}

TEST_F(ClassMapTest, WhatIsMissingEndsTheReading) {
  Sampler record = sample();
  EXPECT_EQ(build(jvm_.env(), ClassOf<Sampler>::kMap, nullptr), nullptr);
  EXPECT_EQ(read(jvm_.env(), ClassOf<Sampler>::kMap, nullptr, &record), -1);
  EXPECT_EQ(read(jvm_.env(), ClassOf<Sampler>::kMap, jvm_.newInput(), nullptr), -1);
  const jobject object = jvm_.newInput();
  jvm_.setObject(object, "inner", "Ltessaly/str/diskarray/Inner;", nullptr);
  EXPECT_EQ(read(jvm_.env(), ClassOf<Sampler>::kMap, object, &record), -1);
  EXPECT_EQ(std::memcmp(record.list, sample().list, sizeof record.list), 0);
}

TEST_F(ClassMapTest, NoMemoryForTheCopyOfATextWithoutANul) {
  const Sampler record = sample();
  resetTestRuntime(1);
  EXPECT_NE(build(jvm_.env(), ClassOf<Inner>::kMap, &record.inner), nullptr);
  EXPECT_EQ(jvm_.pending()->shown(), "OutOfMemoryError");
  jvm_.clearPending();
  // The copy behind that of `text` is that of `texts`, which end the builder.
  resetTestRuntime(2);
  EXPECT_EQ(build(jvm_.env(), ClassOf<Sampler>::kMap, &record), nullptr);
  EXPECT_EQ(jvm_.pending()->shown(), "OutOfMemoryError");
  EXPECT_EQ(testRuntime().liveRecords, 0);
}

TEST_F(ClassMapTest, FieldsOfAPartAreThoseOfTheObjectAroundIt) {
  const Headed record{1, {{2, "abc"}, 3}, 4};
  const jobject object = build(jvm_.env(), ClassOf<Headed>::kMap, &record);
  ASSERT_NE(object, nullptr);
  EXPECT_EQ(jvm_.intOf(object, "first"), 1);
  EXPECT_EQ(jvm_.intOf(jvm_.objectOf(object, "inner"), "number"), 2);
  EXPECT_EQ(jvm_.intOf(object, "word"), 3);
  EXPECT_EQ(jvm_.intOf(object, "tail"), 4);
  Headed copy{};
  EXPECT_EQ(read(jvm_.env(), ClassOf<Headed>::kMap, object, &copy), 0);
  EXPECT_EQ(std::memcmp(&copy, &record, sizeof copy), 0);

  // What stops a part stops the record around it.
  copy = {};
  jvm_.setObject(object, "inner", "Ltessaly/str/diskarray/Inner;", nullptr);
  EXPECT_EQ(read(jvm_.env(), ClassOf<Headed>::kMap, object, &copy), -1);
  EXPECT_EQ(copy.head.word, 3);
  EXPECT_EQ(copy.tail, 0);
}

}  // namespace
}  // namespace quorvelj::testing
