#include "dbmanager/countries.h"

#include <gtest/gtest.h>

namespace {

TEST(Countries, LongestPrefixWins) {
  const std::pair<const char*, const char*> cases[] = {
      {"EDDF", "Germany"},      {"EGNS", "Isle of Man"},   {"EGLL", "United Kingdom"},
      {"UKBB", "Ukraine"},      {"UUEE", "Russia"},        {"UMKK", "Russia"},
      {"UMMS", "Belarus"},      {"KJFK", "United States"}, {"PHNL", "United States"},
      {"ZBAA", "China"},        {"ZKPY", "North Korea"},   {"YSSY", "Australia"},
      {"TNCM", "Sint Maarten"}, {"FMEE", "Réunion"},       {"FMMI", "Madagascar"},
      {"CYYZ", "Canada"}};
  for (const auto& [code, name] : cases) {
    const Country* country = FindCountryByAirportCode(code);
    ASSERT_NE(country, nullptr) << code;
    EXPECT_EQ(country->name, name);
  }
  for (const char* code : {"", "KJF", "02KY", "K1B2", "eddf", "QQQQ", "EDDFX"}) {
    EXPECT_EQ(FindCountryByAirportCode(code), nullptr) << code;
  }
}

TEST(Countries, ByNumberAndName) {
  EXPECT_EQ(FindCountryByNumber("276")->region, "Europe");
  EXPECT_EQ(FindCountryByNumber("277"), nullptr);
  EXPECT_EQ(FindCountryByName("Germany")->number, "276");
  EXPECT_EQ(FindCountryByName("Atlantis"), nullptr);
}

}  // namespace
