#include "flightplan/profile_picture.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/code_page.h"
#include "base/numbers.h"
#include "map/style_keeper.h"

namespace {

constexpr std::int32_t Rgb(int red, int green, int blue) {
  return red | green << 8 | blue << 16;
}

constexpr ProfileColors nightProfile{Rgb(13, 17, 24),    Rgb(32, 41, 55),    Rgb(140, 152, 170),
                                     Rgb(223, 229, 238), Rgb(110, 170, 240), Rgb(96, 190, 170),
                                     Rgb(180, 150, 230), Rgb(112, 124, 142), Rgb(240, 138, 124)};
constexpr ProfileColors dayProfile{Rgb(255, 255, 255), Rgb(222, 228, 235), Rgb(95, 107, 122),
                                   Rgb(28, 35, 44),    Rgb(43, 101, 171),  Rgb(14, 124, 102),
                                   Rgb(108, 70, 168),  Rgb(122, 133, 148), Rgb(179, 38, 30)};

// Pixels around the plot, and of what is drawn in it.
constexpr float leftMargin = 58;
constexpr float rightMargin = 20;
constexpr float topMargin = 25;
constexpr float bottomMargin = 21;
constexpr float textGap = 6;
constexpr float dotRadius = 2.2F;
constexpr float markRadius = 3.6F;
constexpr float topTick = 5;

constexpr float textPoints = 8.25F;
constexpr double headroom = 1.12;
constexpr int mostGridLines = 4;
constexpr std::int32_t levelFrom = 10000;  // feet, altitudes read as levels

// The lowest of the usual steps that needs no more than mostGridLines.
int GridStep(double highest) {
  for (const int step : {500, 1000, 2000, 5000, 10000, 20000})
    if (highest / step <= mostGridLines) return step;
  return 50000;
}

std::string AltitudeText(double feet) {
  if (feet >= levelFrom) return "FL " + std::to_string(RoundToEven(feet / 100));
  return std::to_string(RoundToEven(feet)) + " ft";
}

std::string DistanceText(double distance) {
  return std::to_string(RoundToEven(distance)) + " NM";
}

// Hours are not wrapped: a flight may be longer than a day.
std::string TimeText(double minutes) {
  const int whole = RoundToEven(minutes);
  const int hours = whole / 60;
  return FormatPicture(hours, "00") + ":" + FormatPicture(whole - hours * 60, "00");
}

void PrintAt(DrawSurface& surface, float x, float y, std::string_view text, std::int32_t color) {
  surface.ForeColor = color;
  surface.CurrentX = x;
  surface.CurrentY = y;
  surface.Print(text);
}

class ProfilePicture {
 public:
  ProfilePicture(const FlightProfile& profile, const FlightPlan& plan, const ProfileScale& scale,
                 const ProfileColors& colors, DrawSurface& surface)
      : profile(profile), plan(plan), scale(scale), colors(colors), surface(surface) {}

  void DrawGround() {
    const PictureFrame& frame = scale.Frame();
    Fill({{{frame.left, frame.top},
           {frame.left + frame.width, frame.top},
           {frame.left + frame.width, frame.top + frame.height},
           {frame.left, frame.top + frame.height}}},
         colors.ground, 1);
  }

  void DrawNote() {
    if (profile.note.empty()) return;
    const float x = scale.Right() - surface.TextWidth(profile.note);
    if (Span{x, scale.Right()}.Meets(plate)) return;
    PrintAt(surface, x, scale.Frame().top + scale.Pixels(textGap), profile.note, colors.quiet);
  }

  void DrawGrid() {
    const int step = GridStep(scale.HighestAltitude());
    const float half = surface.TextHeight("0") / 2;
    for (double feet = 0; feet <= scale.HighestAltitude(); feet += step) {
      const float y = scale.YOf(feet);
      if (y > scale.Bottom()) continue;
      surface.Line(scale.Left(), y, scale.Right(), y, colors.grid);
      const std::string text = AltitudeText(feet);
      PrintAt(surface, scale.Left() - scale.Pixels(textGap) - surface.TextWidth(text), y - half, text,
              colors.quiet);
    }
  }

  // The parts that belong to the procedures.
  void DrawProcedures() {
    const int sids = plan.SidRows();
    const int stars = plan.StarRows();
    if (sids > 0) DrawBand(0, RowDistance(sids), colors.sid);
    if (stars > 0) DrawBand(RowDistance(plan.DestinationRow() - stars), profile.Length(), colors.star);
  }

  // A step line: quiet where the level is above it.
  void DrawMinimums() {
    for (int row = 1; row < plan.RowCount(); ++row) {
      const std::int32_t minimum = LegMinimum(plan.Row(row));
      if (minimum <= 0) continue;
      const bool fault = minimum > profile.level;
      surface.DrawWidth = fault ? 1.8F : 1.2F;
      const float y = scale.YOf(minimum);
      surface.Line(scale.XOf(RowDistance(row - 1)), y, scale.XOf(RowDistance(row)), y,
                   fault ? colors.fault : colors.minimum);
    }
    surface.DrawWidth = 1;
  }

  void DrawFlight() {
    std::vector<SurfacePoint> line;
    for (const ProfilePoint& point : profile.points)
      line.push_back({scale.XOf(point.distance), scale.YOf(point.altitude)});
    std::vector<SurfacePoint> area = line;
    area.push_back({scale.Right(), scale.Bottom()});
    area.push_back({scale.Left(), scale.Bottom()});
    surface.Opacity = 0.13F;
    surface.Polygon(area, colors.line);
    surface.Opacity = 1;
    surface.DrawWidth = 2;
    surface.Polyline(line, colors.line);
    surface.DrawWidth = 1;
  }

  // Every waypoint has its dot; the codes that find room below the plot are printed.
  void DrawWaypoints() {
    for (int row = 0; row < plan.RowCount(); ++row) {
      const double distance = RowDistance(row);
      Disc({scale.XOf(distance), scale.YOf(PointAt(profile, distance).altitude)}, dotRadius, colors.text);
    }
    std::vector<Span> taken;
    PrintCode(0, taken);
    PrintCode(plan.DestinationRow(), taken);
    for (int row = 1; row < plan.DestinationRow(); ++row)
      PrintCode(row, taken);
  }

  void DrawTops() {
    if (profile.topOfClimb == profile.topOfDescent) return DrawPeak();
    const ProfilePoint& climb = profile.TopOfClimb();
    const ProfilePoint& descent = profile.TopOfDescent();
    DrawTick(climb);
    DrawTick(descent);
    const std::string climbText = DistanceText(climb.distance) + "  " + TimeText(climb.minutes);
    const std::string descentText =
        DistanceText(profile.Length() - descent.distance) + " to go  " + TimeText(descent.minutes);
    const float climbWidth = TopWidth("TOC", climbText);
    const float descentWidth = TopWidth("TOD", descentText);
    // Each begins at its own end of the level part and keeps clear of the other.
    const float gap = scale.Pixels(3 * textGap);
    float climbX = std::max(scale.Left(), scale.XOf(climb.distance) - scale.Pixels(textGap));
    float descentX = std::min(scale.Right() - descentWidth,
                              scale.XOf(descent.distance) - descentWidth + scale.Pixels(textGap));
    const float overlap = climbX + climbWidth + gap - descentX;
    if (overlap > 0) {
      climbX = std::max(scale.Left(), climbX - overlap / 2);
      descentX = climbX + climbWidth + gap;
    }
    PrintTop("TOC", climbText, climbX);
    PrintTop("TOD", descentText, descentX);
  }

  // Where the mark is told; what is printed there otherwise gives way to it.
  void PlaceMark(double distance) {
    const int row = RowAt(profile, distance);
    markText = MarkText(PointAt(profile, distance)) + "   " + DistanceText(RowDistance(row) - distance) +
               " to " + Code(row);
    const float width = surface.TextWidth(markText) + scale.Pixels(2 * textGap);
    const PictureFrame& frame = scale.Frame();
    const float left = std::clamp(scale.XOf(distance) - width / 2, frame.left,
                                  std::max(frame.left, frame.left + frame.width - width));
    plate = {left, left + width};
  }

  void DrawMark(double distance) {
    const float x = scale.XOf(distance);
    surface.Opacity = 0.6F;
    surface.Line(x, scale.Top(), x, scale.Bottom(), colors.text);
    surface.Opacity = 1;
    Disc({x, scale.YOf(PointAt(profile, distance).altitude)}, markRadius, colors.text);
    const float top = scale.Frame().top + scale.Pixels(2);
    const float bottom = top + surface.TextHeight(markText) + scale.Pixels(4);
    Fill({{{plate.left, top}, {plate.right, top}, {plate.right, bottom}, {plate.left, bottom}}}, colors.grid,
         0.96F);
    PrintAt(surface, plate.left + scale.Pixels(textGap), top + scale.Pixels(2), markText, colors.text);
  }

 private:
  struct Span {
    float left = 0;
    float right = 0;
    bool Meets(const Span& other) const { return left < other.right && other.left < right; }
  };

  double RowDistance(int row) const { return profile.rows[static_cast<std::size_t>(row)]; }
  std::string Code(int row) const { return CodePageToUtf8(plan.Row(row).Code.View()); }

  void Fill(const std::array<SurfacePoint, 4>& corners, std::int32_t color, float opacity) {
    surface.Opacity = opacity;
    surface.Polygon(corners, color);
    surface.Opacity = 1;
  }

  void Disc(SurfacePoint middle, float radius, std::int32_t color) {
    const StyleKeeper keeper(surface);
    surface.FillStyle = FillStyleKind::solid;
    surface.FillColor = color;
    surface.Circle(middle.x, middle.y, scale.Pixels(radius), color);
  }

  void DrawBand(double from, double to, std::int32_t color) {
    const float left = scale.XOf(from);
    const float right = scale.XOf(to);
    Fill({{{left, scale.Top()}, {right, scale.Top()}, {right, scale.Bottom()}, {left, scale.Bottom()}}},
         color, 0.12F);
  }

  void PrintCode(int row, std::vector<Span>& taken) {
    const std::string code = Code(row);
    const float width = surface.TextWidth(code);
    const float x = scale.XOf(RowDistance(row));
    const float left =
        std::clamp(x - width / 2, scale.Frame().left, scale.Frame().left + scale.Frame().width - width);
    const Span span{left - scale.Pixels(textGap), left + width + scale.Pixels(textGap)};
    if (std::any_of(taken.begin(), taken.end(), [&](const Span& other) { return span.Meets(other); })) return;
    taken.push_back({left, left + width});
    surface.Line(x, scale.Bottom(), x, scale.Bottom() + scale.Pixels(3), colors.quiet);
    const bool airport = row == 0 || row == plan.DestinationRow();
    PrintAt(surface, left, scale.Bottom() + scale.Pixels(4), code, airport ? colors.text : colors.quiet);
  }

  void DrawTick(const ProfilePoint& top) {
    const float x = scale.XOf(top.distance);
    const float y = scale.YOf(top.altitude);
    surface.Line(x, y - scale.Pixels(topTick), x, y + scale.Pixels(topTick), colors.text);
  }

  // The name bold, its figures quiet behind it.
  float NameWidth(std::string_view name) {
    surface.FontBold = true;
    const float width = surface.TextWidth(name) + scale.Pixels(textGap);
    surface.FontBold = false;
    return width;
  }
  float TopWidth(std::string_view name, std::string_view text) {
    return NameWidth(name) + surface.TextWidth(text);
  }
  void PrintTop(std::string_view name, std::string_view text, float x) {
    const float y = scale.Frame().top + scale.Pixels(textGap);
    const float behind = x + NameWidth(name);
    if (Span{x, behind + surface.TextWidth(text)}.Meets(plate)) return;
    surface.FontBold = true;
    PrintAt(surface, x, y, name, colors.text);
    surface.FontBold = false;
    PrintAt(surface, behind, y, text, colors.quiet);
  }

  // Climb and descent meet: one mark, left of the note.
  void DrawPeak() {
    const ProfilePoint& peak = profile.TopOfClimb();
    DrawTick(peak);
    const std::string text = DistanceText(peak.distance) + "  " + TimeText(peak.minutes);
    const float room = scale.Right() - surface.TextWidth(profile.note) - scale.Pixels(3 * textGap);
    const float width = TopWidth("TOC, TOD", text);
    PrintTop("TOC, TOD", text,
             std::max(scale.Left(), std::min(scale.XOf(peak.distance) - width / 2, room - width)));
  }

  const FlightProfile& profile;
  const FlightPlan& plan;
  const ProfileScale& scale;
  const ProfileColors& colors;
  DrawSurface& surface;
  Span plate;  // of the mark's text; empty without a mark
  std::string markText;
};

}  // namespace

ProfileScale::ProfileScale(const FlightProfile& profile, const FlightPlan& plan, PictureFrame frame,
                           float unitsPerPixel)
    : frame(frame),
      unitsPerPixel(unitsPerPixel),
      left(frame.left + Pixels(leftMargin)),
      right(std::max(left + 1, frame.left + frame.width - Pixels(rightMargin))),
      top(frame.top + Pixels(topMargin)),
      bottom(std::max(top + 1, frame.top + frame.height - Pixels(bottomMargin))),
      length(std::max(profile.Length(), 1e-3)),
      lowest(0),
      highest(levelFrom / 10.0) {
  for (const ProfilePoint& point : profile.points) {
    lowest = std::min(lowest, point.altitude);
    highest = std::max(highest, point.altitude);
  }
  for (const PlanWaypoint& row : plan.rows)
    highest = std::max<double>(highest, LegMinimum(row));
  highest *= headroom;
}

float ProfileScale::XOf(double distance) const {
  return static_cast<float>(left + (right - left) * distance / length);
}

float ProfileScale::YOf(double altitude) const {
  return static_cast<float>(bottom - (bottom - top) * (altitude - lowest) / (highest - lowest));
}

double ProfileScale::DistanceAt(float x) const {
  return std::clamp(static_cast<double>(x - left) / (right - left), 0.0, 1.0) * length;
}

std::int32_t LegMinimum(const PlanWaypoint& row) {
  return row.HasAirway() ? std::max(row.AirwayMinAlt, 0) : 0;
}

std::string MarkText(const ProfilePoint& point) {
  return DistanceText(point.distance) + "   " + AltitudeText(point.altitude) + "   " +
         TimeText(point.minutes);
}

const ProfileColors& ProfileColorsOf(bool night) {
  return night ? nightProfile : dayProfile;
}

void DrawProfile(const FlightProfile& profile, const FlightPlan& plan, const ProfileScale& scale,
                 std::optional<double> marked, DrawSurface& surface, const ProfileColors& colors) {
  const StyleKeeper keeper(surface);
  surface.ResetStyle();
  surface.FontSize = textPoints;
  ProfilePicture picture(profile, plan, scale, colors, surface);
  if (marked && !profile.points.empty()) picture.PlaceMark(*marked);
  picture.DrawGround();
  picture.DrawNote();
  if (profile.points.empty()) return;
  picture.DrawGrid();
  picture.DrawProcedures();
  picture.DrawMinimums();
  picture.DrawFlight();
  picture.DrawWaypoints();
  picture.DrawTops();
  if (marked) picture.DrawMark(*marked);
}
