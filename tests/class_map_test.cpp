// The interpreter on a record that has a member of every type.
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
  std::byte rawCube[1][2][2];
  Inner inner;
  Inner list[2];
  Inner table[2][2];
  Inner cube[1][1][2];
};
QUORVEL_RECORD(Sampler, 132);

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
struct Row {
  std::int32_t words[2];
};
QUORVEL_RECORD(Row, 8);

struct Rows {
  Row row[3];
};
QUORVEL_RECORD(Rows, 24);

QUORVELJ_CLASS(Row, words);
QUORVELJ_CLASS(Rows, row);
QUORVELJ_CLASS(Inner, number, text);
QUORVELJ_CLASS(Sampler, word, negative, positive, text, texts, words, grid, bytes, byteGrid, raw,
               rawCube, inner, list, table, cube);
// The members that can be read: raw bytes of three dimensions are only built.
QUORVELJ_MAP(kReadSampler, Sampler, QUORVELJ_FIELD(Sampler, word),
             QUORVELJ_FIELD(Sampler, negative), QUORVELJ_FIELD(Sampler, positive),
             QUORVELJ_FIELD(Sampler, text), QUORVELJ_FIELD(Sampler, texts),
             QUORVELJ_FIELD(Sampler, words), QUORVELJ_FIELD(Sampler, grid),
             QUORVELJ_FIELD(Sampler, bytes), QUORVELJ_FIELD(Sampler, byteGrid),
             QUORVELJ_FIELD(Sampler, raw), QUORVELJ_FIELD(Sampler, inner),
             QUORVELJ_FIELD(Sampler, list), QUORVELJ_FIELD(Sampler, table));
QUORVELJ_MAP(kReadCubes, Sampler, QUORVELJ_FIELD(Sampler, cube), QUORVELJ_FIELD(Sampler, rawCube));
QUORVELJ_MAP(kLightInner, Inner, QUORVELJ_FIELD(Inner, text));
QUORVELJ_MAP(kLightSampler, Sampler, QUORVELJ_FIELD(Sampler, list).first(1).as(kLightInner));

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
  std::vector<jobject> elements(jobject object, const char* name) {
    return jvm_.elementsOf(jvm_.objectOf(object, name));
  }

  MiniJvm jvm_;
};

TEST_F(ClassMapTest, BuildsEveryKindOfMember) {
  const Sampler record = sample();
  const jobject object = build(jvm_.env(), ClassOf<Sampler>::kMap, &record);
  ASSERT_NE(object, nullptr);
  EXPECT_EQ(static_cast<std::uint32_t>(jvm_.intOf(object, "word")), 0x83828180U);
  EXPECT_EQ(jvm_.intOf(object, "negative"), 0x84 - 0x100);
  EXPECT_EQ(jvm_.intOf(object, "positive"), 0x85);
  // No text of the record has a NUL: each ends where its member does.
  EXPECT_EQ(jvm_.textOf(object, "text"), "\x86\x87\x88\x89\x8A");
  EXPECT_EQ(elements(object, "texts").size(), 2U);
  EXPECT_EQ(jvm_.textOf(jvm_.objectOf(object, "inner"), "text"), "\xC0\xC1\xC2\xC3");
  EXPECT_EQ(static_cast<std::uint32_t>(jvm_.intsOf(jvm_.objectOf(object, "words"))[1]),
            0x9B9A9998U);
  EXPECT_EQ(static_cast<std::uint32_t>(jvm_.intsOf(elements(object, "grid")[1])[1]), 0xABAAA9A8U);
  EXPECT_EQ(jvm_.intsOf(jvm_.objectOf(object, "bytes")), (std::vector<jint>{-84, -83}));
  EXPECT_EQ(jvm_.intsOf(elements(object, "byteGrid")[1]), (std::vector<jint>{-80, -79}));
  const auto raw = jvm_.bytesOf(jvm_.objectOf(object, "raw"));
  EXPECT_EQ(raw[2], static_cast<jbyte>(0xB4));
  EXPECT_EQ(raw.size(), 8192U) << "the array at hand is filled, not replaced";
  const auto cube = jvm_.elementsOf(elements(object, "rawCube")[0]);
  EXPECT_EQ(jvm_.bytesOf(cube[1]),
            (std::vector<jbyte>{static_cast<jbyte>(0xB7), static_cast<jbyte>(0xB8)}));
  EXPECT_EQ(jvm_.textOf(elements(object, "list")[1], "text"), "\xD0\xD1\xD2\xD3");
  EXPECT_EQ(jvm_.textOf(jvm_.elementsOf(elements(object, "table")[1])[1], "text"),
            "\xF0\xF1\xF2\xF3");
  EXPECT_EQ(jvm_.elementsOf(jvm_.elementsOf(elements(object, "cube")[0])[0]).size(), 2U);
}

TEST_F(ClassMapTest, ATextEndsAtItsNulOrWhereItsMemberDoes) {
  Sampler record = sample();
  const std::string slots("a\0?bcd", sizeof record.texts);
  slots.copy(&record.texts[0][0], sizeof record.texts);
  const jobject object = build(jvm_.env(), ClassOf<Sampler>::kMap, &record);
  JNIEnv* const env = jvm_.env();
  const auto texts = elements(object, "texts");
  EXPECT_STREQ(env->GetStringUTFChars(static_cast<jstring>(texts[0]), nullptr), "a");
  EXPECT_STREQ(env->GetStringUTFChars(static_cast<jstring>(texts[1]), nullptr), "bcd");
}

TEST_F(ClassMapTest, TextsWithoutMemoryForTheirCopyThrow) {
  const Sampler record = sample();
  // The first copy is of a text, the second of a list.
  for (const int copy : {1, 2}) {
    resetTestRuntime(copy);
    MiniJvm jvm;
    EXPECT_EQ(build(jvm.env(), ClassOf<Sampler>::kMap, &record), nullptr);
    ASSERT_TRUE(jvm.pending());
    EXPECT_EQ(jvm.pending()->className, "java/lang/OutOfMemoryError");
    EXPECT_EQ(testRuntime().liveRecords, 0);
  }
}

TEST_F(ClassMapTest, ReadsBackWhatItBuilt) {
  const Sampler record = sample();
  const jobject object = build(jvm_.env(), ClassOf<Sampler>::kMap, &record);
  Sampler copy{};
  EXPECT_EQ(read(jvm_.env(), kReadSampler, object, &copy), 0);
  EXPECT_EQ(copy.word, record.word);
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
  EXPECT_STREQ(copy.table[1][1].text, "\xF0\xF1\xF2");
}

TEST_F(ClassMapTest, LongArraysStopAtTheRecordsCapacity) {
  jvm_.profile = {.text = "a long text", .primitives = 500, .objects = 500};
  struct {
    Sampler record;
    unsigned char behind[64];
  } guarded;
  std::memset(&guarded, 0xEE, sizeof guarded);
  EXPECT_EQ(read(jvm_.env(), kReadSampler, jvm_.newInput(), &guarded.record), 0);
  EXPECT_STREQ(guarded.record.table[1][1].text, "a l");
  EXPECT_EQ(guarded.record.cube[0][0][0].number, static_cast<std::int32_t>(0xEEEEEEEE));
  EXPECT_EQ(guarded.behind[0], 0xEE);
}

TEST_F(ClassMapTest, ShortArraysAndNullElementsLeaveTheRest) {
  jvm_.profile.objects = 2;
  const jobject object = jvm_.newInput();
  const jobjectArray list =
      jvm_.env()->NewObjectArray(1, jvm_.env()->FindClass("tessaly/str/diskarray/Inner"), nullptr);
  jvm_.setObject(object, "list", "[Ltessaly/str/diskarray/Inner;", list);
  Sampler record = sample();
  EXPECT_EQ(read(jvm_.env(), kReadSampler, object, &record), 0);
  EXPECT_EQ(std::memcmp(record.list, sample().list, sizeof record.list), 0);
  EXPECT_NE(std::memcmp(record.table, sample().table, sizeof record.table), 0);
}

TEST_F(ClassMapTest, AnExceptionEndsTheReadingOfAnArray) {
  JNIEnv* const env = jvm_.env();
  const jobjectArray rows = env->NewObjectArray(3, env->FindClass("Input"), nullptr);
  for (jsize index = 0; index < 3; ++index) {
    const jobject row = jvm_.newInput();
    jvm_.setObject(row, "words", "[I",
                   jvm_.newInts(std::vector<jint>(index == 1 ? 1 : 2, index + 1)));
    env->SetObjectArrayElement(rows, index, row);
  }
  const jobject object = jvm_.newInput();
  jvm_.setObject(object, "row", "[Ltessaly/str/diskarray/Row;", rows);
  Rows record{};
  EXPECT_EQ(read(env, ClassOf<Rows>::kMap, object, &record), 2817);
  EXPECT_EQ(record.row[0].words[1], 1);
  EXPECT_EQ(record.row[2].words[0], 0);
  EXPECT_EQ(jvm_.pending()->className, "java/lang/ArrayIndexOutOfBoundsException");
}

TEST_F(ClassMapTest, ReadingStopsAtTheFirstFailure) {
  Sampler record = sample();
  EXPECT_EQ(read(jvm_.env(), kReadSampler, nullptr, &record), -1);
  EXPECT_EQ(read(jvm_.env(), kReadSampler, jvm_.newInput(), nullptr), -1);
  const jobject object = jvm_.newInput();
  jvm_.setObject(object, "inner", "Ltessaly/str/diskarray/Inner;", nullptr);
  EXPECT_EQ(read(jvm_.env(), kReadSampler, object, &record), -1);
  EXPECT_EQ(std::memcmp(record.list, sample().list, sizeof record.list), 0);
  // A nested object that stops inside stops the reader only by an exception.
  jvm_.removeField("number");
  EXPECT_EQ(read(jvm_.env(), kReadSampler, jvm_.newInput(), &record), 2817);
  EXPECT_EQ(std::memcmp(record.list, sample().list, sizeof record.list), 0);
  jvm_.clearPending();
  jvm_.removeField("word");
  EXPECT_EQ(read(jvm_.env(), kReadSampler, jvm_.newInput(), &record), 2817);
}

TEST_F(ClassMapTest, BuildingFailsOnAnythingButAText) {
  const Sampler record = sample();
  EXPECT_EQ(build(jvm_.env(), ClassOf<Sampler>::kMap, nullptr), nullptr);
  for (const char* const field :
       {"word", "words", "grid", "bytes", "raw", "rawCube", "inner", "list", "cube", "number"}) {
    MiniJvm jvm;
    jvm.removeField(field);
    EXPECT_EQ(build(jvm.env(), ClassOf<Sampler>::kMap, &record), nullptr) << field;
  }
  jvm_.removeField("text");
  EXPECT_NE(build(jvm_.env(), ClassOf<Inner>::kMap, &record), nullptr);
}

TEST_F(ClassMapTest, OfThreeDimensionsRecordsAreReadAndRawBytesAreNot) {
  const Sampler record = sample();
  Sampler copy{};
  const jobject object = build(jvm_.env(), ClassOf<Sampler>::kMap, &record);
  EXPECT_EQ(read(jvm_.env(), kReadCubes, object, &copy), 2817);
  EXPECT_EQ(static_cast<std::uint32_t>(copy.cube[0][0][1].number), 0xFFFEFDFCU);
  EXPECT_EQ(copy.rawCube[0][0][0], std::byte{0});
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
  jvm_.removeField("word");
  EXPECT_EQ(read(jvm_.env(), ClassOf<Headed>::kMap, object, &copy), 2817);
  EXPECT_EQ(build(jvm_.env(), ClassOf<Headed>::kMap, &record), nullptr);
}

TEST_F(ClassMapTest, LightFormsBuildASubset) {
  const Sampler record = sample();
  const jobject object = build(jvm_.env(), kLightSampler, &record);
  const auto list = elements(object, "list");
  ASSERT_EQ(list.size(), 1U);
  EXPECT_EQ(jvm_.textOf(list[0], "text"), "\xC8\xC9\xCA\xCB");
}

}  // namespace
}  // namespace quorvelj::testing
