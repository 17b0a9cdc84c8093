#include "base/code_page.h"

#include <gtest/gtest.h>

TEST(CodePage, EveryByteSurvivesTheWayToUtf8AndBack) {
  std::string all;
  for (int c = 0; c < 256; ++c)
    all.push_back(static_cast<char>(c));
  const std::string utf8 = CodePageToUtf8(all);
  EXPECT_TRUE(IsValidUtf8(utf8));
  EXPECT_EQ(Utf8ToCodePage(utf8), all);
}

TEST(CodePage, KnownCharacters) {
  EXPECT_EQ(CodePageToUtf8("K\xF6ln \x80 \xB7"), "Köln € ·");
  EXPECT_EQ(Utf8ToCodePage("São Tomé – Ünye"), "S\xE3o Tom\xE9 \x96 \xDCnye");
}

TEST(CodePage, WhatItLacksIsWrittenWithTheNearestLetters) {
  EXPECT_EQ(Utf8ToCodePage("Łódź"),
            "L\xF3"
            "dz");
  EXPECT_EQ(Utf8ToCodePage("İstanbul Değirmen Şişli, Brașov, Đà Nẵng"),
            "Istanbul Degirmen Sisli, Brasov, D\xE0 Nang");
  EXPECT_EQ(Utf8ToCodePage("Щёлково Ярославль"), "Shchyolkovo Yaroslavl");
  EXPECT_EQ(Utf8ToCodePage("Mu\xCC\x88nchen 東"), "Munchen ?");
}

TEST(CodePage, DamagedUtf8IsRefusedAndNeverLosesItsNeighbours) {
  const char* damaged[] = {"\xC3", "a\xC3", "\xE2\x82", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                           "\x80", "\xFF"};
  for (const char* text : damaged)
    EXPECT_FALSE(IsValidUtf8(text));
  EXPECT_EQ(Utf8ToCodePage("a\xC3z"), "a?z");
}
