#include "map/map_objects_near.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/map/hover_world.h"

namespace {

constexpr float placeX = 5662;
constexpr float placeY = 3500;

std::vector<std::string> Texts(const std::vector<MapObject>& objects) {
  std::vector<std::string> texts;
  for (const MapObject& object : objects)
    texts.push_back(object.text);
  return texts;
}

using Lines = std::vector<std::string>;

// Rows first and first + 1 of the intersection table, joined by an airway.
void PutAirway(NavDatabase& d, std::vector<AirwaySegmentRec>& airways, Position from, Position to,
               std::string_view name, char level = ' ') {
  const auto first = static_cast<std::int32_t>(d.intersections.size());
  PutIntersection(d, from.lat, from.lon, "A" + std::to_string(first));
  PutIntersection(d, to.lat, to.lon, "B" + std::to_string(first));
  d.intersections[static_cast<std::size_t>(first)].strAirwayType.characters[0] = level;
  AirwaySegmentRec segment;
  segment.strName = name;
  segment.lngFrom = first;
  segment.lngTo = first + 1;
  airways.push_back(segment);
}

// One of everything at 50 north 8 east; an airspace and land around it.
void PutEverything(NavDatabase& d) {
  PutAirport(d, 50, 8, "EDDF");
  d.airports[0].lngIls = 2;
  d.ils.resize(2);
  d.ils[1].strCode = "IFEL";
  d.ils[1].strRwyID = "25R";
  d.ils[1].sngLat = 50;
  d.ils[1].sngLon = 8;
  d.pendingIls.resize(1);
  d.pendingIls[0].strCode = "IPND";
  d.pendingIls[0].sngLat = 50;
  d.pendingIls[0].sngLon = 8;
  d.vors.push_back(VorAt(10, 8, "FAR"));
  d.vors.push_back(VorAt(50, 8, "FFM"));
  d.ndbs.push_back(NdbAt(50, 8, "FR"));
  PutAirway(d, d.victorAirways, {50, 8}, {50, 8.5F}, "V1", 'L');
  PutAirway(d, d.jetAirways, {50, 7.5F}, {50, 8.5F}, "J1", 'H');
  d.fixes.push_back(FixAt(50, 8, "DF401"));
  d.airspaces.push_back(AirspaceAt(50, 8, "FRANKFURT", 1));
  d.airspaces.push_back(AirspaceAt(10, 8, "ELSEWHERE", 1));
  d.worldPolygons.points = {{49, 7}, {49, 9}, {51, 9}, {51, 7}};
  WorldShapeRec land;
  land.sngBox1 = 7;
  land.sngBox2 = 49;
  land.sngBox3 = 9;
  land.sngBox4 = 51;
  land.bytType = worldLand;
  land.pointCount = 4;
  d.worldPolygons.shapes = {land};
}

TEST(MapObjectsNear, NamesEverythingInOrder) {
  HoverWorld world;
  PutEverything(world.database);
  world.Index();
  const auto objects = MapObjectsNear(world.Question(placeX, placeY), {});
  EXPECT_EQ(Texts(objects), (Lines{"Airport EDDF Airport", "VOR FFM Name", "NDB FR Name", "ILS IFEL EDDF 25R",
                                   "ILS IPND", "Int A0", "Fix DF401", "Victor airway V1", "Jet airway J1",
                                   "Airspace FRANKFURT", "Coast around this place"}));
  EXPECT_TRUE(objects[1].selection.Holds(SelectedObject::vor, 1));
  EXPECT_TRUE(objects[3].selection.Holds(SelectedObject::ils, 1));
  EXPECT_TRUE(objects[4].selection.Holds(SelectedObject::ils, 2)) << "pending ones follow the airports'";
  EXPECT_EQ(objects[7].selection.SelectedAirway, "V1");
  EXPECT_EQ(objects[8].selection.SelectedObjectType, SelectedObject::jetAirway);
  EXPECT_EQ(objects[9].selection.activeAirspaces, std::vector<std::int32_t>{0});
  EXPECT_EQ(objects[10].selection.SelectedOutline, 0);
}

TEST(MapObjectsNear, OffersOnlyWhatIsShown) {
  struct Case {
    const char* why;
    void (*hide)(HoverWorld&);
    Lines left;
  };
  const auto nothing = [](MapSwitches& s) {
    s = MapSwitches{};
    s.mnuCoastlines = s.mnuAirport = s.mnuILS = s.mnuVOR = s.mnuNDB = s.mnuVictor = s.mnuJet = false;
  };
  static const auto off = nothing;
  const Case cases[] = {
      {"nothing on", [](HoverWorld& w) { off(w.switches); }, {}},
      {"airports without ILS",
       [](HoverWorld& w) {
         off(w.switches);
         w.switches.mnuAirport = true;
       },
       {"Airport EDDF Airport"}},
      {"an ILS needs its airports",
       [](HoverWorld& w) {
         off(w.switches);
         w.switches.mnuILS = true;
       },
       {}},
      {"intersections of the victor airways",
       [](HoverWorld& w) {
         off(w.switches);
         w.switches.mnuVictor = true;
       },
       {"Int A0", "Victor airway V1"}},
      {"jet airways: no intersection of theirs is here",
       [](HoverWorld& w) {
         off(w.switches);
         w.switches.mnuJet = true;
       },
       {"Jet airway J1"}},
      {"fixes beyond 150 NM",
       [](HoverWorld& w) {
         off(w.switches);
         w.switches.mnuGPSFix = true;
         w.view = MapView::At(50, 8, 11);
       },
       {}},
      {"ILS at 200 NM, not beyond",
       [](HoverWorld& w) {
         off(w.switches);
         w.switches.mnuILS = w.switches.mnuAirport = true;
         w.view = MapView::At(50, 8, 12);
       },
       {"Airport EDDF Airport"}},
  };
  for (const Case& c : cases) {
    HoverWorld world;
    PutEverything(world.database);
    world.Index();
    c.hide(world);
    world.view.UpdateVisibilityBox();
    EXPECT_EQ(Texts(MapObjectsNear(world.Question(placeX, placeY), {})), c.left) << c.why;
  }
}

TEST(MapObjectsNear, ASecondPickTakesAnAirspaceBack) {
  HoverWorld world;
  world.database.airspaces.push_back(AirspaceAt(50, 8, "FRANKFURT", 1));
  world.Index();
  MapSelection present;
  present.SelectedObjectIndex = 7;
  present.activeAirspaces = {3, 0};
  const auto objects = MapObjectsNear(world.Question(placeX, placeY), present);
  ASSERT_EQ(objects.size(), 1u);
  EXPECT_EQ(objects[0].selection.activeAirspaces, std::vector<std::int32_t>{3});
  EXPECT_EQ(objects[0].selection.SelectedObjectIndex, 7) << "what else is picked out stays";
}

TEST(MapObjectsNear, AirwaysWithin60Units) {
  HoverWorld world;
  PutAirway(world.database, world.database.jetAirways, {50, 7}, {50, 9}, "J1");
  PutAirway(world.database, world.database.jetAirways, {50, 7}, {50, 9}, "J1");
  world.Index();
  const auto named = [&](float x, float y) {
    Lines airways;
    for (const std::string& text : Texts(MapObjectsNear(world.Question(x, y), {})))
      if (text.starts_with("Jet")) airways.push_back(text);
    return airways;
  };
  EXPECT_EQ(named(placeX, placeY + 59), Lines{"Jet airway J1"}) << "once, though it has two segments here";
  EXPECT_EQ(named(placeX, placeY + 60), Lines{});
  EXPECT_EQ(named(placeX, placeY - 60), Lines{});
  // Its end, a degree east of the centre: 4200 units times the cosine of 50 degrees.
  const float end = 5662 + 2699;
  EXPECT_EQ(named(end + 50, placeY), Lines{"Jet airway J1"});
  EXPECT_EQ(named(end + 70, placeY), Lines{}) << "a segment ends where it ends";
}

TEST(MapObjectsNear, AnAirwayAcrossTheDateLineIsMetOnBothSidesOnly) {
  HoverWorld world;
  PutAirway(world.database, world.database.jetAirways, {0, 178}, {0, -178}, "J1");
  world.Index();
  const auto airwaysAt = [&](float lon) {
    world.view = MapView::At(0, 180, 20);  // 105 units a degree: all of the world
    world.view.UpdateVisibilityBox();
    const auto x = static_cast<float>(world.view.LonToX(lon));
    return MapObjectsNear(world.Question(x, 3600 - 70), {}).size();
  };
  EXPECT_EQ(airwaysAt(179.5F), 1u);
  EXPECT_EQ(airwaysAt(-179.5F), 1u);
  EXPECT_EQ(airwaysAt(150), 0u);
  EXPECT_EQ(airwaysAt(-150), 0u);
}

TEST(MapObjectsNear, TheListIsNoLongerThanItsLimit) {
  HoverWorld world;
  for (int row = 0; row < 100; ++row)
    world.database.fixes.push_back(FixAt(50, 8, "F" + std::to_string(row)));
  world.Index();
  EXPECT_EQ(MapObjectsNear(world.Question(placeX, placeY), {}).size(), maxMapObjects);
}

TEST(MapObjectsNear, TheIndexFindsWhatAWalkFinds) {
  HoverWorld indexed;
  HoverWorld walked;
  for (HoverWorld* world : {&indexed, &walked}) {
    FillRandomly(world->database, 3);
    std::mt19937 random(4);
    NavDatabase& d = world->database;
    for (int row = 0; row < 500; ++row) {
      const Position from = RandomPlace(random);
      PutAirway(d, row % 2 == 0 ? d.jetAirways : d.victorAirways, from, {from.lat, WrappedLon(from.lon + 1)},
                "W" + std::to_string(row));
    }
    world->Index();
  }
  walked.WalkWholeTables();
  walked.database.airspacesByBox = PlaceIndex::WholeTable(walked.database.airspaces.size());
  walked.database.jetAirwaysByEnds = PlaceIndex::WholeTable(walked.database.jetAirways.size());
  walked.database.victorAirwaysByEnds = PlaceIndex::WholeTable(walked.database.victorAirways.size());
  std::mt19937 random(5);
  std::uniform_int_distribution<int> row(2, 21);
  std::size_t hits = 0;
  for (int round = 0; round < 200; ++round) {
    const Position centre = RandomPlace(random);
    indexed.view = MapView::At(centre.lat, centre.lon, row(random));
    indexed.view.UpdateVisibilityBox();
    walked.view = indexed.view;
    const auto found = Texts(MapObjectsNear(indexed.Question(placeX, placeY), {}));
    hits += found.size();
    ASSERT_EQ(found, Texts(MapObjectsNear(walked.Question(placeX, placeY), {})))
        << centre.lat << ", " << centre.lon << " row " << indexed.view.ZoomIndex;
  }
  EXPECT_GT(hits, 500u);
}

TEST(ShapeHolds, InsideOutsideAndTheDateLine) {
  const std::vector<Position> square = {{0, 0}, {0, 10}, {10, 10}, {10, 0}};
  const std::vector<Position> closed = {{0, 0}, {0, 10}, {10, 10}, {10, 0}, {0, 0}};
  const std::vector<Position> fiji = {{-20, 175}, {-20, -175}, {-10, -175}, {-10, 175}};
  const std::vector<Position> hollow = {{0, 0}, {0, 10}, {10, 10}, {5, 5}, {10, 0}};
  struct Case {
    const char* why;
    const std::vector<Position>* shape;
    Position place;
    bool inside;
  };
  const std::vector<Position> none;
  const Case cases[] = {
      {"inside", &square, {5, 5}, true},
      {"closed in the data", &closed, {5, 5}, true},
      {"north", &square, {11, 5}, false},
      {"east", &square, {5, 11}, false},
      {"west", &square, {5, -1}, false},
      {"other side of the world", &square, {5, 179}, false},
      {"west of the date line", &fiji, {-15, 178}, true},
      {"east of the date line", &fiji, {-15, -178}, true},
      {"between the two the long way", &fiji, {-15, 0}, false},
      {"in the notch", &hollow, {9, 5}, false},
      {"below the notch", &hollow, {4, 5}, true},
      {"no shape at all", &none, {0, 0}, false},
  };
  for (const Case& c : cases)
    EXPECT_EQ(ShapeHolds(*c.shape, c.place), c.inside) << c.why;
}

}  // namespace
