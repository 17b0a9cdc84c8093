#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

#include "navdata/ident_index.h"
#include "navdata/nav_database.h"
#include "navdata/place_index.h"

TEST(IdentIndex, AnswersAsAScanFromRowZero) {
  std::mt19937 random(7);
  std::vector<std::string> idents(5000);
  for (std::string& ident : idents) {
    const auto length = random() % 3;  // some empty, many equal
    for (unsigned i = 0; i < length; ++i)
      ident.push_back(static_cast<char>('A' + random() % 26));
  }
  const auto index =
      IdentIndex::Build(idents.size(), [&](std::size_t row) { return std::string_view(idents[row]); });
  for (const char* wanted : {"A", "ZZ", "QX", "", "ABC"}) {
    std::vector<std::int32_t> scan;
    for (std::size_t row = 0; row < idents.size(); ++row) {
      if (!idents[row].empty() && idents[row] == wanted) scan.push_back(static_cast<std::int32_t>(row));
    }
    EXPECT_EQ(index.All(wanted), scan) << wanted;
    EXPECT_EQ(index.First(std::string(" ") + wanted + "  "), scan.empty() ? -1 : scan.front());
  }
  EXPECT_EQ(IdentIndex().First("A"), -1);
}

TEST(PlaceIndex, HoldsEveryRowThatAScanFindsInAscendingOrder) {
  std::mt19937 random(11);
  std::uniform_real_distribution<float> lat(-90, 90);
  std::uniform_real_distribution<float> lon(-180, 180);
  std::vector<Position> places;
  for (int i = 0; i < 20000; ++i)
    places.push_back({lat(random), lon(random)});
  for (const Position edge : {Position{90, 180}, {-90, -180}, {0, 180}, {0, -180}, {90, 0}})
    places.push_back(edge);
  places.push_back({std::nanf(""), 0});
  const PlaceIndex index = PlaceIndex::Build(places);

  const struct {
    Position centre;
    double radius;
  } circles[] = {{{50, 8}, 30},     {{0, 179.95F}, 60}, {{89.9F, 10}, 200}, {{-90, 0}, 50},
                 {{80, -179}, 600}, {{0, 0}, 11000},    {{60, -180}, 5},    {{45, 45}, 0}};
  for (const auto& circle : circles) {
    const auto near = index.Near(circle.centre, circle.radius);
    EXPECT_TRUE(std::is_sorted(near.begin(), near.end()));
    for (std::size_t row = 0; row < places.size(); ++row) {
      const double distance =
          GreatCircleDistance(circle.centre.lat, circle.centre.lon, places[row].lat, places[row].lon);
      if (distance <= circle.radius) {
        EXPECT_TRUE(std::binary_search(near.begin(), near.end(), static_cast<std::int32_t>(row)))
            << places[row].lat << ' ' << places[row].lon;
      }
    }
  }
  EXPECT_LT(index.Near({50, 8}, 30).size(), 100u);
}

TEST(PlaceIndex, BoxesAcrossTheDateLine) {
  const PlaceIndex index = PlaceIndex::Build({{10, 179}, {10, -179}, {10, 0}, {-10, 179}});
  EXPECT_EQ(index.Near(GeoBox{5, 170, 15, -170}), (std::vector<std::int32_t>{0, 1}));
  EXPECT_EQ(index.Near(GeoBox{-90, -180, 90, 180}), (std::vector<std::int32_t>{0, 1, 2, 3}));
  EXPECT_TRUE(index.Near(GeoBox{20, 0, 10, 10}).empty());
  EXPECT_TRUE(index.Near(Position{std::nanf(""), 0}, 10).empty());
  EXPECT_TRUE(PlaceIndex().Near(GeoBox{}).empty());
}

TEST(RunwayNames, NumbersAbove36AreCompassPoints) {
  const struct {
    const char *code, *name;
  } cases[] = {{"37", "N"},  {"38", "NE"},    {"44", "NW"}, {"36", "36"},
               {"45", "45"}, {"07L ", "07L"}, {"", ""}};
  for (const auto& c : cases)
    EXPECT_EQ(GetRwyName(c.code), c.name);
}
