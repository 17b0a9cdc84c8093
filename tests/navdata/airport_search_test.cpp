#include "navdata/airport_search.h"

#include <gtest/gtest.h>

#include "base/code_page.h"
#include "base/folded_text.h"

namespace {

struct Drawn {
  const char* code;
  const char* name;
  const char* city;
  const char* state;
  const char* country;
  std::int16_t runway;
};

constexpr Drawn drawnAirports[] = {
    {"LFPG", "Charles de Gaulle", "Paris", "0", "France", 13829},
    {"LFPO", "Orly", "Paris", "0", "France", 11975},
    {"KPRX", "Cox Field", "Paris", "Texas", "United States", 6002},
    {"EGKK", "Gatwick", "London", "0", "United Kingdom", 10364},
    {"EGLL", "Heathrow", "London", "0", "United Kingdom", 12802},
    {"LFMN", "Côte d'Azur", "Nice", "0", "France", 9711},
    {"KORD", "O'Hare Intl", "Chicago", "Illinois", "United States", 13000},
    {"PARI", "Paralia", "", "0", "Greece", 2000},
    {"EDDM", "Muenchen", "", "0", "Germany", 13123},
    {"LSZH", "Zürich", "Zürich", "0", "Switzerland", 12139},
    {"KSBD", "San Bernardino", "San Bernardino", "California", "United States", 10000},
    {"LSZB", "Bern Belp", "Bern", "0", "Switzerland", 5676},
    {"", "Nameless", "", "0", "", 100},
    {"LSZW", "Zürich Lake", "", "0", "Switzerland", -20000},  // below 0: on water
};

class AirportSearchTest : public testing::Test {
 protected:
  AirportSearchTest() {
    for (const Drawn& drawn : drawnAirports) {
      AirportRec airport;
      airport.strCode = std::string_view(drawn.code);
      airport.strName = Utf8ToCodePage(drawn.name);
      airport.strCity = Utf8ToCodePage(drawn.city);
      airport.strState = std::string_view(drawn.state);
      airport.strCountry = std::string_view(drawn.country);
      airport.lngRunways = 1;
      airport.firstRunway = static_cast<std::uint32_t>(database.runways.size());
      RunwayRec& runway = database.runways.emplace_back();
      runway.intLength = static_cast<std::int16_t>(std::abs(drawn.runway));
      runway.bytSurface = drawn.runway < 0 ? 2 : 0;
      database.airports.push_back(airport);
    }
    AirportRec& pseudo = database.airports.emplace_back();
    pseudo.strCode = std::string_view("AFIL");
    pseudo.strName = std::string_view("from current location");
    database.lngAirports = static_cast<std::int32_t>(database.airports.size()) - 1;
    BuildIndexes(database);
  }

  std::string Codes(std::string_view typed, std::size_t most = AirportSearch::mostListed) {
    const AirportSearch search(database);
    std::string codes;
    for (const std::int32_t row : search.Find(typed, most).rows)
      codes += (codes.empty() ? "" : " ") + database.airports[static_cast<std::size_t>(row)].strCode.Text();
    return codes;
  }

  NavDatabase database;
};

TEST_F(AirportSearchTest, AnswersWhatIsTypedBestFirst) {
  const struct {
    const char* typed;
    const char* codes;
  } cases[] = {
      {"egkk", "EGKK"},
      {"EG", "EGLL EGKK"},
      // The code's beginning before words, whole words before beginnings.
      {"par", "PARI LFPG LFPO KPRX"},
      {"paris", "LFPG LFPO KPRX"},
      {"pari", "PARI LFPG LFPO KPRX"},
      {"bern", "LSZB KSBD"},
      {"paris orly", "LFPO"},
      {"  orly,  PARIS ", "LFPO"},
      {"united kingdom gatwick", "EGKK"},
      {"gatwick egkk", "EGKK"},
      {"gatwick egll", ""},
      {"paris texas", "KPRX"},
      {"united", "KORD EGLL EGKK KSBD KPRX"},
      // Accents, apostrophes and spelled umlauts in either direction.
      {"cote d'azur", "LFMN"},
      {"CÔTE D’AZUR", "LFMN"},
      {"azur", "LFMN"},
      {"o'hare", "KORD"},
      {"ohare", "KORD"},
      {"hare", "KORD"},
      {"münchen", "EDDM"},
      {"zurich", "LSZH LSZW"},
      {"zuerich", "LSZH LSZW"},
      {"zürich", "LSZH LSZW"},
      {"Zürich München", ""},
      // Not within a word, not the state "0", no pseudo airport, nothing from nothing.
      {"atwick", ""},
      {"0", ""},
      {"afil", ""},
      {"", ""},
      {" -- ", ""},
      {"東京", ""},
  };
  for (const auto& c : cases)
    EXPECT_EQ(Codes(c.typed), c.codes) << c.typed;
}

TEST_F(AirportSearchTest, ListsNoMoreThanAskedForAndTellsHowManyThereAre) {
  EXPECT_EQ(Codes("paris", 2), "LFPG LFPO");
  EXPECT_EQ(AirportSearch(database).Find("paris", 2).total, 3U);
  EXPECT_EQ(AirportSearch(NavDatabase()).Find("paris").total, 0U);
}

TEST_F(AirportSearchTest, TheLongestRunwayIsOneOnLandIfThereIsOne) {
  database.airports[0].lngRunways = static_cast<std::int32_t>(database.runways.size());
  EXPECT_EQ(LongestRunwayFeet(database, database.airports[0]), 13829);
  EXPECT_EQ(LongestRunwayFeet(database, database.airports[std::size(drawnAirports) - 1]), 20000);
  EXPECT_EQ(LongestRunwayFeet(database, AirportRec()), 0);
}

TEST(FoldedText, ParsesWordsWithoutAccents) {
  const struct {
    const char* text;
    Umlauts umlauts;
    Apostrophes apostrophes;
    const char* folded;
  } cases[] = {
      {"  São Paulo - Guarulhos ", Umlauts::plain, Apostrophes::join, "sao paulo guarulhos"},
      {"ÀÉÎÕÜŸ ÇÑŠŽ", Umlauts::plain, Apostrophes::join, "aeiouy cnsz"},
      {"Älmhult Ålesund Tromsø", Umlauts::plain, Apostrophes::join, "almhult alesund tromso"},
      {"Älmhult Ålesund Tromsø", Umlauts::spelled, Apostrophes::join, "aelmhult aalesund tromsoe"},
      {"Æther Œuvre Straße Þór", Umlauts::plain, Apostrophes::join, "aether oeuvre strasse thor"},
      {"L'Aquila 4×4", Umlauts::plain, Apostrophes::join, "laquila 4 4"},
      {"L'Aquila", Umlauts::plain, Apostrophes::part, "l aquila"},
      {"''", Umlauts::plain, Apostrophes::part, ""},
  };
  for (const auto& c : cases)
    EXPECT_EQ(Folded(Utf8ToCodePage(c.text), c.umlauts, c.apostrophes), c.folded) << c.text;
}

}  // namespace
