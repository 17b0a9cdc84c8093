#include "base/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(Val, ReadsTheNumberThatATextStartsWith) {
  const struct {
    const char* text;
    double value;
  } cases[] = {{"", 0},        {"abc", 0},    {"12", 12},    {"  -3.5kg", -3.5}, {"+7", 7},  {".5", 0.5},
               {"1.2.3", 1.2}, {"1e3", 1000}, {"1d2x", 100}, {"1e", 1},          {"-", 0},   {"1 234", 1234},
               {"09", 9},      {"36L", 36},   {"1e999", 0},  {"-0.25", -0.25},   {"00H", 0}, {"\t\n8", 8}};
  for (const auto& c : cases)
    EXPECT_DOUBLE_EQ(Val(c.text), c.value) << '"' << c.text << '"';
}

TEST(Val, WholeNumbersAreHeldWithinTheirRange) {
  EXPECT_EQ(ValInt16("99999"), 32767);
  EXPECT_EQ(ValInt16("-99999"), -32768);
  EXPECT_EQ(ValByte("-1"), 0);
  EXPECT_EQ(ValByte("300"), 255);
  EXPECT_EQ(ValInt32("2.5"), 2);
  EXPECT_EQ(ValInt32("3.5"), 4);
}

TEST(Rounding, ToEvenCutAndFloor) {
  const struct {
    double value;
    int even, cut, floor;
  } cases[] = {
      {0.5, 0, 0, 0},     {1.5, 2, 1, 1},  {2.5, 2, 2, 2},      {-0.5, 0, 0, -1},
      {-1.5, -2, -1, -2}, {2.51, 3, 2, 2}, {-2.51, -3, -2, -3}, {1e300, 2147483647, 2147483647, 2147483647}};
  for (const auto& c : cases) {
    EXPECT_EQ(RoundToEven(c.value), c.even) << c.value;
    EXPECT_EQ(CutToInt(c.value), c.cut) << c.value;
    EXPECT_EQ(FloorToInt(c.value), c.floor) << c.value;
  }
  EXPECT_EQ(RoundToEven(std::nan("")), 0);
}

TEST(FormatPicture, PicturesOfFilesAndLabels) {
  const struct {
    double value;
    const char* picture;
    const char* text;
  } cases[] = {{7, "000.00", "007.00"},
               {1234.5, "000.00", "1234.50"},
               {110.305, "000.000", "110.305"},
               {0.5, "0", "1"},
               {1.5, "0", "2"},
               {2.5, "0", "3"},
               {0.125, "0.00", "0.13"},
               {0.135, "0.00", "0.14"},
               {-3.25, "##0.0000", "-3.2500"},
               {-0.001, "0.00", "0.00"},
               {0, "####0", "0"},
               {0, "####", ""},
               {0.4, "###.00", ".40"},
               {400, "####", "400"},
               {113.9, " 000.00", " 113.90"},
               {12.5, "0.0##", "12.5"},
               {0.0005, "00.0000", "00.0005"},
               {99.99995, "00.0000", "100.0000"},
               {0.285, "0.00", "0.29"},
               {0.04, "0", "0"},
               {9.96, "0.0", "10.0"},
               {0.0004, "0.00", "0.00"},
               {-7, "00", "-07"},
               {3, "000°", "003°"},
               {1e20, "0", "100000000000000000000"}};
  for (const auto& c : cases)
    EXPECT_EQ(FormatPicture(c.value, c.picture), c.text) << c.value << ' ' << c.picture;
  EXPECT_EQ(FormatPicture(std::numeric_limits<double>::infinity(), "00"), "---");
}
