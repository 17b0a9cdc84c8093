#include "flightplan/vertical_profile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "flightplan/cruise_level.h"
#include "flightplan/plan_legs.h"
#include "flightplan/profile_picture.h"
#include "tests/flightplan/drawn_world.h"
#include "tests/map/recording_surface.h"

namespace {

// Along the equator, where a degree is 60 NM.
DrawnPlan EquatorPlan(int departureElevation, int destinationElevation, double degrees, int level) {
  DrawnPlan drawn("airport EDDA 0 0 " + std::to_string(departureElevation) + "\nairport EDDB 0 " +
                  std::to_string(degrees) + " " + std::to_string(destinationElevation));
  drawn.plan.CruiseFL = level;
  return drawn;
}

void ExpectAscending(const FlightProfile& profile, const std::string& name) {
  for (std::size_t i = 1; i < profile.points.size(); ++i) {
    EXPECT_GE(profile.points[i].distance, profile.points[i - 1].distance) << name << ", point " << i;
    EXPECT_GE(profile.points[i].minutes, profile.points[i - 1].minutes) << name << ", point " << i;
  }
}

TEST(FlightProfile, ClimbsStaysLevelAndComesDownByTheModel) {
  const struct {
    int from, to;
    double degrees;
    int level;
    double glideAngle;
  } cases[] = {{364, 13, 10, 250, 0},
               {0, 5434, 10, 310, 0},
               {5434, 0, 3, 110, 0},
               {364, 364, 5, 250, 6},
               {364, 364, 1, 20, 0}};  // the level lies below the final fix
  for (const auto& c : cases) {
    DrawnPlan drawn = EquatorPlan(c.from, c.to, c.degrees, c.level);
    drawn.plan.GlideAngle = static_cast<float>(c.glideAngle);
    const std::string name = std::to_string(c.from) + " to " + std::to_string(c.to);
    const double level = c.level * 100.0;
    const FlightProfile profile = ComputeFlightProfile(drawn.plan, drawn.context);
    ASSERT_FALSE(profile.points.empty()) << name << ": " << profile.note;
    EXPECT_TRUE(profile.levelReached) << name;
    EXPECT_EQ(profile.note, "") << name;
    ExpectAscending(profile, name);
    EXPECT_NEAR(profile.Length(), c.degrees * 60, 0.01) << name;
    EXPECT_EQ(profile.points.front().altitude, c.from) << name;
    EXPECT_EQ(profile.points.back().altitude, c.to) << name;
    EXPECT_NEAR(profile.points.back().distance, profile.Length(), 1e-9) << name;

    const VerticalProfile figures = ComputeVerticalProfile(drawn.plan, drawn.context);
    const double descent = std::max(0.0, level - figures.FinalFixAltitude);
    const double glide = std::min(8.5, 8.5 * (level - c.to) / (figures.FinalFixAltitude - c.to));
    const double cruise = profile.Length() - figures.TopOfClimb - figures.TopOfDescent - glide;
    const ProfilePoint& top = profile.TopOfClimb();
    const ProfilePoint& down = profile.TopOfDescent();
    EXPECT_NEAR(top.distance, figures.TopOfClimb, 1e-6) << name;
    EXPECT_EQ(top.altitude, level) << name;
    EXPECT_NEAR(top.minutes, (level - c.from) / 1000, 1e-6) << name;
    EXPECT_NEAR(down.distance, top.distance + cruise, 1e-6) << name;
    EXPECT_EQ(down.altitude, level) << name;
    EXPECT_NEAR(down.minutes, top.minutes + cruise / 240 * 60, 1e-6) << name;
    EXPECT_NEAR(profile.points.back().minutes, down.minutes + descent / 1000 + glide / 120 * 60, 1e-6)
        << name;
  }
}

TEST(FlightProfile, ASlopeIsTheModelsAtEveryAltitude) {
  DrawnPlan drawn = EquatorPlan(364, 13, 10, 250);
  const FlightProfile profile = ComputeFlightProfile(drawn.plan, drawn.context);
  const double fix = ComputeVerticalProfile(drawn.plan, drawn.context).FinalFixAltitude;
  for (std::size_t i = 1; i <= profile.topOfClimb; ++i) {
    const ProfilePoint& point = profile.points[i];
    EXPECT_NEAR(point.distance, ClimbDistance(point.altitude, 364, drawn.aircraft), 1e-6);
  }
  for (std::size_t i = profile.topOfDescent; profile.points[i].altitude > fix; ++i) {
    const ProfilePoint& point = profile.points[i];
    EXPECT_NEAR(profile.Length() - 8.5 - point.distance, DescentDistance(point.altitude, fix, drawn.aircraft),
                1e-6);
  }
}

TEST(FlightProfile, APlanTooShortForItsLevelHasAPeak) {
  const struct {
    int from, to;
    double degrees;
    int level;
    const char* note;
  } cases[] = {
      {364, 13, 1, 250, "Too short for FL 250: down again from "},
      {364, 13, 1, 0, "Too short for a cruise level: down again from "},
      {5434, 0, 0.5, 110, "Too short for FL 110: down again from "},
      {0, 0, 0.05, 90, "Too short for FL 090: down again from "},  // shorter than the final approach
  };
  for (const auto& c : cases) {
    DrawnPlan drawn = EquatorPlan(c.from, c.to, c.degrees, c.level);
    const FlightProfile profile = ComputeFlightProfile(drawn.plan, drawn.context);
    ASSERT_FALSE(profile.points.empty()) << c.note;
    EXPECT_FALSE(profile.levelReached) << c.note;
    EXPECT_TRUE(profile.note.starts_with(c.note)) << profile.note;
    EXPECT_EQ(profile.topOfClimb, profile.topOfDescent) << c.note;
    ExpectAscending(profile, c.note);
    const ProfilePoint& peak = profile.TopOfClimb();
    EXPECT_NEAR(peak.distance, ClimbDistance(peak.altitude, c.from, drawn.aircraft), 1e-3) << c.note;
    const double fix = ComputeVerticalProfile(drawn.plan, drawn.context).FinalFixAltitude;
    const double left = profile.Length() - peak.distance;
    if (peak.altitude > fix) {
      EXPECT_NEAR(left, 8.5 + DescentDistance(peak.altitude, fix, drawn.aircraft), 1e-3) << c.note;
    } else {
      EXPECT_NEAR(left, 8.5 * (peak.altitude - c.to) / (fix - c.to), 1e-3) << c.note;
    }
    EXPECT_EQ(profile.points.back().altitude, c.to) << c.note;
  }
}

TEST(FlightProfile, SaysWhyThereIsNone) {
  const auto note = [](int elevation, double degrees, int level, auto change) {
    DrawnPlan drawn = EquatorPlan(elevation, elevation, degrees, level);
    change(drawn.aircraft);
    const FlightProfile profile = ComputeFlightProfile(drawn.plan, drawn.context);
    EXPECT_TRUE(profile.points.empty());
    return profile.note;
  };
  const auto same = [](AircraftRec&) {};
  EXPECT_EQ(note(0, 0, 250, same), "The plan has no length");
  EXPECT_EQ(note(5434, 5, 40, same), "The cruise level lies below the airports");
  EXPECT_EQ(note(0, 5, 250, [](AircraftRec& a) { a.ClimbRate = 0; }),
            "The aircraft's climb or descent gives no path");
  EXPECT_EQ(note(0, 5, 250, [](AircraftRec& a) { a.DescentSpeed = 5; }),
            "The aircraft's climb or descent gives no path")
      << "steeper than vertical";
  DrawnPlan cleared = EquatorPlan(0, 0, 10, 0);
  const FlightProfile drawn = ComputeFlightProfile(cleared.plan, cleared.context);
  EXPECT_EQ(drawn.note, "No cruise level: the aircraft's own is drawn");
  EXPECT_EQ(drawn.TopOfClimb().altitude, 25000);
  EXPECT_TRUE(ComputeFlightProfile(FlightPlan(), cleared.context).points.empty());
}

TEST(FlightProfile, KnowsEachPlaceOnTheRoute) {
  DrawnPlan drawn("airport EDDA 0 178 0\nairport EDDB 10 -170 0");
  drawn.Add("Int", "A", 0, -179);
  drawn.Add("Int", "A2", 0, -179);  // a leg without length
  drawn.Add("Int", "B", 0, -170);
  drawn.plan.CruiseFL = 100;
  const FlightProfile profile = ComputeFlightProfile(drawn.plan, drawn.context);
  for (int row = 0; row < drawn.plan.RowCount(); ++row) {
    const Position place = PlaceOnRoute(drawn.plan, profile, profile.rows[static_cast<std::size_t>(row)]);
    EXPECT_NEAR(place.lat, drawn.plan.Row(row).Lat, 1e-4) << row;
    EXPECT_NEAR(place.lon, drawn.plan.Row(row).Lon, 1e-4) << row;
  }
  EXPECT_NEAR(PlaceOnRoute(drawn.plan, profile, 120).lon, 180, 1e-3) << "across the date line";
  EXPECT_NEAR(PlaceOnRoute(drawn.plan, profile, 150).lon, -179.5, 1e-3);
  EXPECT_EQ(PlaceOnRoute(drawn.plan, profile, -5), (Position{0, 178}));
  EXPECT_EQ(PlaceOnRoute(drawn.plan, profile, 1e9), (Position{10, -170}));
  const std::pair<double, int> legs[] = {{-5, 1}, {0, 1}, {179, 1}, {200, 3}, {1e9, 4}};
  for (const auto& [distance, row] : legs)
    EXPECT_EQ(RowAt(profile, distance), row) << distance;
  EXPECT_EQ(PointAt(profile, -1).altitude, 0);
  EXPECT_EQ(PointAt(profile, 1e9).distance, profile.points.back().distance);
  const ProfilePoint level = PointAt(profile, 500);
  EXPECT_EQ(level.altitude, 10000);
  EXPECT_NEAR(level.minutes, 10 + (500 - profile.TopOfClimb().distance) / 240 * 60, 1e-6);
}

// ---- the picture

struct Picture {
  explicit Picture(const FlightPlan& plan, const PlanContext& context, float width = 11325,
                   std::optional<double> marked = {})
      : profile(ComputeFlightProfile(plan, context)), scale(profile, plan, {100, 3000, width, 1000}, 7) {
    DrawProfile(profile, plan, scale, marked, surface);
  }
  bool Says(const std::string& text) const {
    const auto texts = surface.Texts();
    return std::find(texts.begin(), texts.end(), text) != texts.end();
  }

  FlightProfile profile;
  ProfileScale scale;
  RecordingSurface surface;
};

TEST(ProfilePicture, StaysInItsFrameAndNamesTheTops) {
  DrawnPlan drawn("airport EDDA 0 0 0\nairport EDDB 0 10 0");
  for (int i = 1; i < 100; ++i)
    drawn.Add("Int", "W" + std::to_string(i), 0, static_cast<float>(i) / 10);
  drawn.plan.CruiseFL = 250;
  const Picture picture(drawn.plan, drawn.context, 11325, 303);
  for (const char* text : {"TOC", "75 NM  00:25", "TOD", "77 NM to go  02:17", "EDDA", "EDDB", "FL 200"})
    EXPECT_TRUE(picture.Says(text)) << text;
  EXPECT_TRUE(picture.Says(MarkText(PointAt(picture.profile, 303)) + "   3 NM to W51"));
  const double top = picture.profile.TopOfClimb().distance;
  const Picture onTop(drawn.plan, drawn.context, 11325, top);
  EXPECT_FALSE(onTop.Says("TOC")) << "gives way to what is told of the mark";
  EXPECT_TRUE(onTop.Says("TOD"));
  for (const auto& one : picture.surface.drawn)
    for (const SurfacePoint point : one.points) {
      if (one.what == "circle") continue;
      EXPECT_TRUE(point.x >= 100 && point.x <= 11425 && point.y >= 3000 && point.y <= 4000) << one.what;
    }
  // Codes are printed where the one before leaves room.
  std::vector<std::pair<float, float>> codes;
  for (const auto& one : picture.surface.drawn)
    if (one.what == "print" && one.y > picture.scale.Bottom())
      codes.emplace_back(one.x, one.x + static_cast<float>(one.text.size()) * 60);
  std::sort(codes.begin(), codes.end());
  EXPECT_GT(codes.size(), 10u);
  EXPECT_LT(codes.size(), 60u);
  for (std::size_t i = 1; i < codes.size(); ++i)
    EXPECT_GT(codes[i].first, codes[i - 1].second);
  for (const double distance : {0.0, 100.0, 600.0})
    EXPECT_NEAR(picture.scale.DistanceAt(picture.scale.XOf(distance)), distance, 0.1);
  EXPECT_EQ(picture.scale.DistanceAt(-1e6F), 0);
  EXPECT_EQ(picture.scale.DistanceAt(1e6F), picture.profile.Length());
}

TEST(ProfilePicture, WarnsOfAirwaysAboveTheLevel) {
  DrawnPlan drawn("airport EDDA 0 0 0\nairport EDDB 0 10 0");
  const auto add = [&](const char* airway, int minimum, float lon) {
    PlanWaypoint& row = drawn.Add("Int", airway, 0, lon);
    row.Airway = std::string_view(airway);
    row.AirwayMinAlt = minimum;
  };
  add("V1", 6000, 3);
  add("V2", 10000, 5);
  add("V3", 12000, 7);
  add("V4", -1, 8);
  drawn.plan.CruiseFL = 100;
  const Picture picture(drawn.plan, drawn.context);
  const auto stepAt = [&](double from, int minimum) -> std::int32_t {
    for (const auto& one : picture.surface.drawn)
      if (one.what == "line" && std::abs(one.x - picture.scale.XOf(from)) < 1 &&
          std::abs(one.y - picture.scale.YOf(minimum)) < 1)
        return one.color;
    return -1;
  };
  const std::int32_t quiet = stepAt(0, 6000);
  const std::int32_t fault = stepAt(300, 12000);
  EXPECT_GE(quiet, 0);
  EXPECT_GE(fault, 0);
  EXPECT_NE(quiet, fault);
  EXPECT_EQ(stepAt(180, 10000), quiet) << "at the level is high enough";
}

TEST(ProfilePicture, TintsTheProcedures) {
  DrawnPlan drawn("airport EDDA 0 0 0\nairport EDDB 0 10 0");
  drawn.plan.CruiseFL = 100;
  const int plain = Picture(drawn.plan, drawn.context).surface.Count("polygon");
  drawn.Add("Int", "S1", 0, 1, RowKind::sid);
  drawn.Add("Int", "S2", 0, 2, RowKind::sid);
  drawn.Add("Int", "A", 0, 5);
  drawn.Add("Int", "T1", 0, 8, RowKind::star);
  const Picture picture(drawn.plan, drawn.context);
  std::vector<std::pair<double, double>> bands;
  for (const auto& one : picture.surface.drawn)
    if (one.what == "polygon" && one.points.size() == 4 && one.points[0].y == picture.scale.Top())
      bands.emplace_back(picture.scale.DistanceAt(one.points[0].x),
                         picture.scale.DistanceAt(one.points[1].x));
  EXPECT_EQ(picture.surface.Count("polygon"), plain + 2);
  ASSERT_EQ(bands.size(), 2u);
  EXPECT_NEAR(bands[0].first, 0, 0.1);
  EXPECT_NEAR(bands[0].second, 120, 0.1);
  EXPECT_NEAR(bands[1].first, 480, 0.1) << "from the first row of the STAR";
  EXPECT_NEAR(bands[1].second, 600, 0.1);
}

TEST(ProfilePicture, WithoutAFlightIsItsNote) {
  DrawnPlan drawn("airport EDDA 0 0 5434\nairport EDDB 0 10 0");
  drawn.plan.CruiseFL = 40;
  const Picture none(drawn.plan, drawn.context, 11325, 10);
  EXPECT_EQ(none.surface.Texts(), std::vector<std::string>{"The cruise level lies below the airports"});
  drawn.plan.CruiseFL = 990;
  const Picture peak(drawn.plan, drawn.context, 4000);
  EXPECT_TRUE(peak.Says("TOC, TOD"));
  EXPECT_TRUE(peak.Says(peak.profile.note));
}

}  // namespace
