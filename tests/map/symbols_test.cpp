// Every symbol as the operations it draws. The symbol stands at 1000, 2000.
#include <gtest/gtest.h>

#include <functional>

#include "map/clsNavaid.h"
#include "map/modDeclutter.h"
#include "tests/map/painted.h"

namespace {

clsNavaid SymbolOn(DrawSurface& surface) {
  clsNavaid symbol;
  symbol.objTarget = &surface;
  symbol.rangeNM = 50;
  symbol.sngCenterX = 1000;
  symbol.sngCenterY = 2000;
  symbol.sngLength = 30;
  symbol.lngColor = 7;
  return symbol;
}

using Draw = std::function<void(clsNavaid&)>;

std::string Drawn(const Draw& draw) {
  RecordingSurface surface;
  clsNavaid symbol = SymbolOn(surface);
  draw(symbol);
  return DrawnText(surface);
}

struct Golden {
  const char* name;
  Draw draw;
  const char* operations;
};

const Golden goldens[] = {
    {"intersection", [](clsNavaid& s) { s.DrawAsIntersection(); },
     "polyline 1000,1955 970,2015 1030,2015 1000,1955\n"},
    {"intersection, corners rounded to even",
     [](clsNavaid& s) {
       s.sngCenterX = 1000.5F;
       s.sngLength = 31.2F;
       s.DrawAsIntersection();
     },
     "polyline 1000,1954 969,2016 1032,2016 1000,1954\n"},
    {"track point", [](clsNavaid& s) { s.DrawAsNatrackWP(); },
     "polyline 1000,1970 970,2030 1030,2030 1000,1970\n"},
    {"reporting point", [](clsNavaid& s) { s.DrawAsVRP(); },
     "polyline 1000,1970 970,2030 1030,2030 1000,1970\n"
     "circle 1000,2000 r15\n"},
    {"active waypoint", [](clsNavaid& s) { s.DrawAsActiveWP(); }, "circle 1000,2000 r90\n"},
    {"marker", [](clsNavaid& s) { s.DrawAsMarker(); },
     "point 1000,2000\n"
     "circle 1000,2000 r30\n"},
    {"airport circle", [](clsNavaid& s) { s.DrawAsAirportCircle(); }, "circle 1000,2000 r180\n"},
    {"airport, two lines",
     [](clsNavaid& s) {
       s.intRadius = 40;
       s.strName = "EDDF\nFRANKFURT";
       s.DrawAsAirport();
     },
     "circle 1000,2000 r40\n"
     "print 880,2050 [EDDF]\n"
     "print 730,2150 [FRANKFURT]\n"},
    {"runway, corners floored",
     [](clsNavaid& s) {
       s.sngLength = 1000;
       s.intWidth = 100;
       s.sngCourse = 210;
       s.DrawAsRwy();
     },
     "polygon 1206,1541 1293,1591 793,2458 706,2408 1206,1541\n"
     "polyline 1206,1541 1293,1591 793,2458 706,2408 1206,1541\n"},
    {"frequency",
     [](clsNavaid& s) {
       s.objTarget->CurrentX = 20;
       s.sngFrequency = 113.7F;
       s.PrintFrequency();
     },
     "print 20,0 [113.70 ]\n"},
    {"VOR symbol",
     [](clsNavaid& s) {
       s.sngLength = 100;
       s.DrawAsVorSymbol();
     },
     "polyline 950,1900 1050,1900 1100,2000 1050,2100 950,2100 900,2000 950,1900\n"
     "circle 1000,2000 r5\n"},
    {"VORTAC symbol",
     [](clsNavaid& s) {
       s.sngLength = 100;
       s.intType = 2;
       s.DrawAsVorSymbol();
     },
     "polyline 950,1900 1050,1900 1100,2000 1050,2100 950,2100 900,2000 950,1900\n"
     "polyline 900,2000 800,1950 860,1840 950,1900\n"
     "polyline 1100,2000 1200,1950 1140,1840 1050,1900\n"
     "polyline 1050,2100 1050,2200 950,2200 950,2100\n"
     "circle 1000,2000 r5\n"},
    {"VOR-DME symbol at half the size",
     [](clsNavaid& s) {
       s.sngLength = 50;
       s.intType = 4;
       s.DrawAsVorSymbol();
     },
     "polyline 950,1950 1050,1950 1050,2050 950,2050 950,1950\n"
     "polyline 975,1950 1025,1950 1050,2000 1025,2050 975,2050 950,2000 975,1950\n"
     "circle 1000,2000 r5\n"},
    {"DME symbol",
     [](clsNavaid& s) {
       s.sngLength = 100;
       s.intType = 9;
       s.DrawAsVorSymbol();
     },
     "polyline 900,1900 1100,1900 1100,2100 900,2100 900,1900\n"
     "circle 1000,2000 r5\n"},
    {"VOR square, whatever the radius was",
     [](clsNavaid& s) {
       s.intRadius = 60;
       s.DrawAsVorSquare();
       EXPECT_EQ(s.intRadius, 180);
     },
     "circle 1000,2000 r30\n"
     "point 1000,2000\n"},
    {"NDB symbol", [](clsNavaid& s) { s.DrawAsNDBSymbol(); },
     "circle 1000,2000 r30\n"
     "point 1000,2000\n"},
    {"NDB", [](clsNavaid& s) { s.DrawAsNDB(); },
     "circle 1000,2000 r90\n"
     "circle 1000,2000 r60\n"
     "circle 1000,2000 r30\n"},
    {"DME has no rose",
     [](clsNavaid& s) {
       s.sngLength = 50;
       s.intType = 9;
       s.DrawAsVOR();
     },
     "polyline 950,1950 1050,1950 1050,2050 950,2050 950,1950\n"
     "circle 1000,2000 r5\n"},
    {"a small rose has no ticks",
     [](clsNavaid& s) {
       s.sngLength = 20;
       s.intRadius = 50;
       s.DrawAsVOR();
     },
     "circle 1000,2000 r50\n"
     "polyline 990,1980 1010,1980 1020,2000 1010,2020 990,2020 980,2000 990,1980\n"
     "circle 1000,2000 r1\n"},
    // Course 90 from a threshold at 1000, 2000: the feather lies to the west of it.
    {"localizer",
     [](clsNavaid& s) {
       s.sngLength = 1100;
       s.sngCourse = 90;
       s.DrawAsILS();
     },
     "line 1000,2000 1,2044\n"
     "line 1,2044 80,2000\n"
     "line 80,2000 1,1956\n"
     "line 1,1956 1000,2000\n"},
    {"ILS with its name and for a runway chart",
     [](clsNavaid& s) {
       s.sngLength = 1100;
       s.sngCourse = 270;
       s.blnILSType = true;
       s.strCode = "IFNE";
       s.strRwyID = "27";
       s.DrawAsILS();
     },
     "line 1000,2000 1999,1956\n"
     "line 1999,1956 1920,2000\n"
     "line 1920,2000 1999,2044\n"
     "line 1999,2044 1000,2000\n"
     "line 1000,2000 1920,2000\n"
     "print 2100,2000 [ILS IFNE       ]\n"
     "print 970,1950 [X]\n"
     "print 1100,1950 [Rwy 27  270]\n"},
    {"short ILS",
     [](clsNavaid& s) {
       s.sngLength = 1100;
       s.sngCourse = 180;
       s.strCode = "IFNE";
       s.DrawAsShortILS();
     },
     "polyline 1000,2000 978,1500 1022,1500 1000,2000\n"},
    {"static aircraft", [](clsNavaid& s) { s.DrawAsStaticAC(); },
     "line 900,1900 1100,1900\n"
     "line 1100,1900 1100,2100\n"
     "line 1100,2100 900,2100\n"
     "line 900,2100 900,1900\n"},
};

TEST(Symbols, DrawTheirOperations) {
  for (const Golden& golden : goldens)
    EXPECT_EQ(Drawn(golden.draw), golden.operations) << golden.name;
}

TEST(Symbols, FourOfThemAreAPointBeyond900NM) {
  struct Case {
    const char* name;
    Draw draw;
    bool point;
  };
  const Case cases[] = {{"intersection", [](clsNavaid& s) { s.DrawAsIntersection(); }, true},
                        {"airport circle", [](clsNavaid& s) { s.DrawAsAirportCircle(); }, true},
                        {"VOR square", [](clsNavaid& s) { s.DrawAsVorSquare(); }, true},
                        {"NDB symbol", [](clsNavaid& s) { s.DrawAsNDBSymbol(); }, true},
                        {"VOR symbol", [](clsNavaid& s) { s.DrawAsVorSymbol(); }, false},
                        {"NDB", [](clsNavaid& s) { s.DrawAsNDB(); }, false},
                        {"reporting point", [](clsNavaid& s) { s.DrawAsVRP(); }, false},
                        {"track point", [](clsNavaid& s) { s.DrawAsNatrackWP(); }, false}};
  for (const Case& c : cases) {
    const auto at = [&](std::int16_t range) {
      return Drawn([&](clsNavaid& s) {
        s.rangeNM = range;
        c.draw(s);
      });
    };
    EXPECT_EQ(at(900), at(10)) << c.name;
    EXPECT_EQ(at(901).starts_with("point ") && at(901).find('\n') == at(901).size() - 1, c.point) << c.name;
  }
}

TEST(Symbols, IntersectionMovesItsCentreForGood) {
  for (const std::int16_t range : {std::int16_t{50}, std::int16_t{2000}}) {
    RecordingSurface surface;
    clsNavaid symbol = SymbolOn(surface);
    symbol.rangeNM = range;
    symbol.DrawAsIntersection();
    symbol.DrawAsIntersection();
    EXPECT_EQ(symbol.sngCenterY, 1970);
  }
}

TEST(Symbols, GiveTheSurfaceItsStyleBack) {
  const Draw draws[] = {
      [](clsNavaid& s) { s.DrawAsVRP(); },       [](clsNavaid& s) { s.DrawAsActiveWP(); },
      [](clsNavaid& s) { s.DrawAsMarker(); },    [](clsNavaid& s) { s.DrawAsAirportCircle(); },
      [](clsNavaid& s) { s.DrawAsNatrackWP(); }, [](clsNavaid& s) { s.DrawAsVOR(); },
      [](clsNavaid& s) { s.DrawAsVorSquare(); }, [](clsNavaid& s) { s.DrawAsILS(); }};
  for (const Draw& draw : draws) {
    RecordingSurface surface;
    surface.DrawStyle = DrawStyleKind::dash;
    surface.DrawWidth = 3.5F;
    surface.FillStyle = FillStyleKind::solid;
    surface.FillColor = 99;
    surface.Opacity = 0.5F;
    clsNavaid symbol = SymbolOn(surface);
    draw(symbol);
    EXPECT_EQ(surface.DrawStyle, DrawStyleKind::dash);
    EXPECT_EQ(surface.DrawWidth, 3.5F);
    EXPECT_EQ(surface.FillStyle, FillStyleKind::solid);
    EXPECT_EQ(surface.FillColor, 99);
    EXPECT_EQ(surface.Opacity, 0.5F);
  }
}

// North of the rose has the longest tick; with 10.9 degrees of east variation it lies 10 to the right.
TEST(Symbols, RoseIsTurnedByTheWholeDegreesOfTheVariation) {
  struct Case {
    float variation;
    float x, y;  // of the north tick's outer end, radius 180
  };
  const Case cases[] = {{0, 1000, 1820}, {10.9F, 1031.3F, 1822.7F}, {-10.9F, 968.7F, 1822.7F}};
  for (const Case& c : cases) {
    RecordingSurface surface;
    clsNavaid symbol = SymbolOn(surface);
    symbol.sngMagVar = c.variation;
    symbol.DrawAsVOR();
    double longest = 0;
    SurfacePoint north;
    int ticks = 0;
    for (const auto& one : surface.drawn) {
      if (one.what != "line") continue;
      ++ticks;
      const double length = std::hypot(one.points[0].x - one.points[1].x, one.points[0].y - one.points[1].y);
      if (length > longest) north = one.points[0];
      longest = std::max(longest, length);
    }
    EXPECT_EQ(ticks, 12);
    EXPECT_NEAR(longest, 60, 0.1) << "to the inner radius";
    EXPECT_NEAR(north.x, c.x, 0.1) << c.variation;
    EXPECT_NEAR(north.y, c.y, 0.1) << c.variation;
  }
}

TEST(Symbols, RunwayIsTheSameFromBothEnds) {
  const auto at = [](float course) {
    return Drawn([&](clsNavaid& s) {
      s.sngLength = 1000;
      s.intWidth = 100;
      s.sngCourse = course;
      s.DrawAsRwy();
    });
  };
  EXPECT_EQ(at(180), at(0));
  EXPECT_EQ(at(270), at(90));
  EXPECT_EQ(at(359), at(179));
  EXPECT_NE(at(179), at(0));
}

TEST(Symbols, ALineJoinsAirportAndLabelThatCameApart) {
  RecordingSurface surface;
  modDeclutter labels;
  labels.InitDeclutterGrid(surface);
  clsNavaid symbol = SymbolOn(surface);
  symbol.objLabels = &labels;
  symbol.intRadius = 40;
  symbol.strName = "EDDF";
  for (int i = 0; i < 5; ++i)
    symbol.DrawAsAirport();
  // The first stays where it is wanted; of the pushed ones those that lie far off have a line.
  std::vector<int> lines;
  for (std::size_t i = 0; i < surface.drawn.size(); ++i)
    if (surface.drawn[i].what == "line") lines.push_back(static_cast<int>(i));
  ASSERT_FALSE(lines.empty());
  EXPECT_GT(lines.front(), 1);
  const auto& join = surface.drawn[static_cast<std::size_t>(lines.front())];
  EXPECT_NEAR(std::hypot(join.points[0].x - 1000, join.points[0].y - 2000), 40, 0.1) << "from the circle";
}

}  // namespace
