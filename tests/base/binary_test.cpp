#include "base/binary.h"

#include <gtest/gtest.h>

namespace {

struct Sample {
  std::int32_t number = 0;
  FixedText<5> text;
  Reserved<2> gap;
  float real = 0;
  static constexpr void Fields(auto& r, auto& visit) {
    visit(r.number);
    visit(r.text);
    visit(r.gap);
    visit(r.real);
  }
};

}  // namespace

TEST(Binary, ARecordIsPackedLittleEndianAndReadsBack) {
  Sample sample{0x01020304, FixedText<5>("AB"), {}, 1.0F};
  std::vector<std::byte> bytes;
  AppendRecord(bytes, sample);
  const unsigned char expected[] = {4, 3, 2, 1, 'A', 'B', ' ', ' ', ' ', 0, 0, 0, 0, 0x80, 0x3F};
  ASSERT_EQ(bytes.size(), sizeof(expected));
  EXPECT_EQ(std::memcmp(bytes.data(), expected, sizeof(expected)), 0);

  ByteReader reader(bytes);
  Sample back;
  ASSERT_TRUE(reader.ReadRecord(back));
  EXPECT_EQ(back.number, sample.number);
  EXPECT_EQ(back.text.Raw(), "AB   ");
  EXPECT_EQ(back.real, 1.0F);
  EXPECT_TRUE(reader.AtEnd());
}

TEST(Binary, ACutOffRecordLeavesTheTargetAndEndsTheWalk) {
  const std::vector<std::byte> bytes(RecordSize<Sample>() - 1);
  ByteReader reader(bytes);
  Sample sample;
  sample.number = 77;
  EXPECT_FALSE(reader.ReadRecord(sample));
  EXPECT_EQ(sample.number, 77);
  EXPECT_TRUE(reader.AtEnd());
}

TEST(FixedText, CutsPadsAndTrims) {
  EXPECT_EQ(FixedText<4>("ABCDEF").Raw(), "ABCD");
  EXPECT_EQ(FixedText<4>("A").Raw(), "A   ");
  EXPECT_EQ(FixedText<6>("  A B ").View(), "A B");
  EXPECT_TRUE(FixedText<3>("  ").Empty());
  EXPECT_TRUE(FixedText<3>(std::string_view("\0AB", 3)).IsEmptySlot());
  EXPECT_EQ(FixedText<5>("KJFK"), std::string_view("KJFK"));
}
