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

TEST(PlaceIndex, FindsAreasWhereverTheyLie) {
  std::mt19937 random(13);
  const auto between = [&](float low, float high) {
    return low + (high - low) * static_cast<float>(random() % 10001) / 10000;
  };
  std::vector<GeoBox> boxes;
  for (int i = 0; i < 3000; ++i) {
    const float south = between(-90, 80);
    const float west = between(-180, 180);
    const float width = i % 50 == 0 ? 120 : between(0, 4);
    const float east = west + width > 180 ? west + width - 360 : west + width;
    boxes.push_back({south, west, std::min(90.0F, south + between(0, 6)), east});
  }
  boxes.push_back({10, 0, 0, 5});  // holds nothing
  boxes.push_back({std::nanf(""), 0, 5, 5});
  const PlaceIndex index = PlaceIndex::BuildForBoxes(boxes);
  const auto parts = [](const GeoBox& box) {
    return box.west <= box.east ? std::vector<GeoBox>{box}
                                : std::vector<GeoBox>{{box.south, box.west, box.north, 180},
                                                      {box.south, -180, box.north, box.east}};
  };
  const auto touch = [&](const GeoBox& a, const GeoBox& b) {
    for (const GeoBox& p : parts(a))
      for (const GeoBox& q : parts(b))
        if (p.south <= q.north && q.south <= p.north && p.west <= q.east && q.west <= p.east) return true;
    return false;
  };
  const GeoBox views[] = {{48, 5, 52, 12}, {-20, 175, -10, -175}, {-90, -180, 90, 180}, {89, 10, 90, 10.5F}};
  for (const GeoBox& view : views) {
    const auto near = index.Near(view);
    EXPECT_TRUE(std::is_sorted(near.begin(), near.end()));
    EXPECT_EQ(std::adjacent_find(near.begin(), near.end()), near.end()) << "no row twice";
    for (std::size_t row = 0; row < 3000; ++row) {
      if (!touch(boxes[row], view)) continue;
      EXPECT_TRUE(std::binary_search(near.begin(), near.end(), static_cast<std::int32_t>(row))) << row;
    }
    EXPECT_TRUE(near.empty() || near.back() < 3000);
  }
  EXPECT_LT(index.Near(views[0]).size(), 300u);
}

TEST(BoxAround, GoesTheShorterWayRound) {
  struct Case {
    const char* why;
    std::vector<Position> points;
    GeoBox box;
  };
  const Case cases[] = {{"plain", {{10, 20}, {12, 25}, {11, 22}}, {10, 20, 12, 25}},
                        {"across the date line", {{1, 178}, {2, -177}, {0, 179}}, {0, 178, 2, -177}},
                        {"from the other side", {{1, -178}, {2, 177}}, {1, 177, 2, -178}},
                        {"up to it", {{0, 170}, {0, 180}}, {0, 170, 0, 180}},
                        {"all round", {{80, 0}, {80, 120}, {80, -120}, {80, 0}}, {80, -180, 80, 180}},
                        {"no numbers", {{std::nanf(""), 5}, {3, 4}}, {3, 4, 3, 4}}};
  for (const Case& c : cases) {
    const GeoBox box = BoxAround(c.points);
    EXPECT_EQ(box.south, c.box.south) << c.why;
    EXPECT_EQ(box.west, c.box.west) << c.why;
    EXPECT_EQ(box.north, c.box.north) << c.why;
    EXPECT_EQ(box.east, c.box.east) << c.why;
  }
  const GeoBox none = BoxAround({});
  EXPECT_GT(none.south, none.north);
}

TEST(RunwayNames, NumbersAbove36AreCompassPoints) {
  const struct {
    const char *code, *name;
  } cases[] = {{"37", "N"},  {"38", "NE"},    {"44", "NW"}, {"36", "36"},
               {"45", "45"}, {"07L ", "07L"}, {"", ""}};
  for (const auto& c : cases)
    EXPECT_EQ(GetRwyName(c.code), c.name);
}
