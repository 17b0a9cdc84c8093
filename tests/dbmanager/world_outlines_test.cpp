#include <gtest/gtest.h>

#include "dbmanager/source_error.h"
#include "dbmanager/topojson.h"
#include "dbmanager/world_files.h"
#include "navdata/world_loader.h"

namespace {

// Two squares side by side, a hole in the first: "01" is the side they share.
const char* const twoCountries = R"({"type":"Topology",
  "objects":{"countries":{"type":"GeometryCollection","geometries":[
    {"type":"MultiPolygon","id":"276","properties":{"name":"Germany"},"arcs":[[[0,1],[3]]]},
    {"type":"Polygon","id":"250","properties":{"name":"France"},"arcs":[[2,-2]]},
    {"type":null}]}},
  "transform":{"scale":[0.5,0.5],"translate":[10,40]},
  "arcs":[
    [[20,20],[-20,0],[0,-20],[20,0]],
    [[20,0],[0,20]],
    [[20,0],[20,0],[0,20],[-20,0]],
    [[4,4],[4,0],[0,4],[-4,0],[0,-4]]]})";

TEST(TopoJson, RingsAreMadeOfSharedSides) {
  const Outlines outlines = ReadTopoJson(twoCountries, "countries", "test.json");
  ASSERT_EQ(outlines.objects.size(), 3u);
  const OutlinePolygon& first = outlines.objects[0].polygons.at(0);
  ASSERT_EQ(first.rings.size(), 2u);
  EXPECT_EQ(first.rings[0].size(), 5u);
  EXPECT_EQ(first.rings[0].front().lat, first.rings[0].back().lat);
  EXPECT_EQ(first.rings[0][1].lat, 50);
  EXPECT_EQ(first.rings[0][1].lon, 10);
  ASSERT_EQ(outlines.sharedArcs.size(), 1u);
  EXPECT_EQ(outlines.sharedArcs[0].front().lon, 20);
}

TEST(TopoJson, RefusesWhatIsNoTopology) {
  const std::string good = twoCountries;
  const auto with = [&](const std::string& from, const std::string& to) {
    return std::string(good).replace(good.find(from), from.size(), to);
  };
  for (const std::string& text :
       {std::string(), std::string("{}"), std::string("[1,2"), good.substr(0, good.size() / 2),
        with("[[2,-2]]", "[[2,9]]"), with("[[2,-2]]", "[[2,-90]]"), with("[[2,-2]]", "[[\"x\"]]"),
        with("[[20,0],[0,20]]", "[[20,0],[0,2000]]"), with("[[20,0],[0,20]]", "[[20],[0,20]]"),
        with("\"countries\"", "\"land\"")}) {
    EXPECT_THROW(ReadTopoJson(text, "countries", "test.json"), BuildError) << text.substr(0, 40);
  }
}

TEST(WorldFiles, CoastsWithHolesAndBordersWithBounds) {
  const Outlines outlines = ReadTopoJson(twoCountries, "countries", "test.json");
  const WorldFile coasts = MakeWorldPolygons(outlines);
  WorldShapes shapes;
  EXPECT_TRUE(ParseWorldPolygons(coasts.bytes, shapes));
  ASSERT_EQ(shapes.shapes.size(), 3u);
  EXPECT_EQ(shapes.shapes[0].bytType, 1);
  EXPECT_EQ(shapes.shapes[1].bytType, 3);
  EXPECT_EQ(shapes.shapes[2].lngID, 3);
  EXPECT_EQ(shapes.shapes[2].sngBox1, 20.0F);  // west, south, east, north
  EXPECT_EQ(shapes.shapes[2].sngBox2, 40.0F);
  EXPECT_EQ(shapes.shapes[2].sngBox3, 30.0F);
  EXPECT_EQ(shapes.shapes[2].sngBox4, 50.0F);
  WorldShapes lines;
  EXPECT_TRUE(ParseWorldLines(MakeWorldLines(outlines).bytes, lines));
  ASSERT_EQ(lines.shapes.size(), 1u);
  EXPECT_EQ(lines.shapes[0].bytType, 2);
  EXPECT_EQ(lines.shapes[0].pointCount, 2u);
}

TEST(WorldFiles, NoPolygonButTheLastEndsTheFile) {
  Outlines many;
  many.objects.resize(1);
  const OutlineRing ring{{0, 0}, {0, 1}, {1, 1}, {0, 0}};
  many.objects[0].polygons.assign(17010, OutlinePolygon{{ring}});
  WorldShapes shapes;
  ParseWorldPolygons(MakeWorldPolygons(many).bytes, shapes);
  EXPECT_EQ(shapes.shapes.size(), 17010u);
}

TEST(CountryOutlines, InsideAHoleAndOffTheCoast) {
  const CountryOutlines outlines(ReadTopoJson(twoCountries, "countries", "test.json"));
  const auto name = [](const Country* country) { return country == nullptr ? "" : country->name; };
  EXPECT_EQ(name(outlines.At({45, 15})), "Germany");
  EXPECT_EQ(name(outlines.At({45, 25})), "France");
  EXPECT_EQ(name(outlines.At({43, 13})), "");  // the hole
  EXPECT_EQ(name(outlines.At({45, 30.2})), "");
  EXPECT_EQ(name(outlines.Near({45, 30.2})), "France");
  EXPECT_EQ(name(outlines.Near({45, 33})), "");
}

double Area(const OutlineRing& ring) {
  double area = 0;
  for (std::size_t i = 0; i + 1 < ring.size(); ++i) {
    area += (ring[i].lon * ring[i + 1].lat - ring[i + 1].lon * ring[i].lat) / 2;
  }
  return std::abs(area);
}

TEST(SplitAtDateLine, CutsAcrossAndClosesAroundThePole) {
  struct Case {
    const char* what;
    OutlineRing ring;
    std::size_t parts;
    double area;  // square degrees
  };
  const Case cases[] = {
      {"plain", {{0, 0}, {0, 10}, {10, 10}, {10, 0}, {0, 0}}, 1, 100},
      {"across", {{0, 175}, {0, -175}, {10, -175}, {10, 175}, {0, 175}}, 2, 100},
      {"touching", {{0, 170}, {0, 180}, {10, 180}, {10, 170}, {0, 170}}, 1, 100},
      {"touching from the east", {{0, -180}, {0, -170}, {10, -170}, {10, -180}, {0, -180}}, 1, 100},
      {"around the south pole",
       {{-80, -180}, {-80, -90}, {-80, 0}, {-80, 90}, {-80, 180}, {-80, -180}},
       1,
       3600},
      {"around the north pole", {{80, 100}, {80, -170}, {80, -60}, {80, 30}, {80, 100}}, 2, 3600},
      {"a line", {{0, 0}, {0, 10}, {0, 0}}, 0, 0}};
  for (const Case& c : cases) {
    const auto parts = SplitAtDateLine(c.ring);
    EXPECT_EQ(parts.size(), c.parts) << c.what;
    double area = 0;
    for (const OutlineRing& part : parts) {
      area += Area(part);
      EXPECT_EQ(part.front().lon, part.back().lon) << c.what;
      for (const SourcePosition p : part)
        EXPECT_LE(std::abs(p.lon), 180.0) << c.what;
    }
    EXPECT_NEAR(area, c.area, 1e-6) << c.what;
  }
}

}  // namespace
