#include "dbmanager/airway_files.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <numeric>
#include <set>
#include <tuple>

#include "navdata/file_records.h"
#include "navdata/geodesy.h"

namespace {

constexpr std::size_t mostLinks = 255;  // their number is one byte

FixedText<5> LevelText(int flightLevel) {
  std::array<char, 16> text{};
  const int length = std::snprintf(text.data(), text.size(), "FL%03d", flightLevel);
  return FixedText<5>(std::string_view(text.data(), static_cast<std::size_t>(length)));
}

float Single(double value) {
  return static_cast<float>(value);
}

struct Link {
  std::size_t to = 0;
  FixedText<8> airway;
  float distance = 0;
  FixedText<5> lowest;
  FixedText<5> highest;
};

struct Point {
  AirwayEnd end;
  std::vector<Link> low;
  std::vector<Link> high;
  std::int32_t row = 0;  // 0: left out
};

struct Segment {
  std::size_t from = 0;
  Link link;
  bool high = false;
};

class AirwayFilesMaker {
 public:
  AirwayFilesMaker(const NavData& navaids, const std::function<double(SourcePosition)>& variationAt,
                   std::size_t lastRow)
      : navaids(navaids), variationAt(variationAt), lastRow(lastRow) {}

  AirwayFiles Make(std::span<const SourceAirway> source) {
    IndexNavaids();
    for (const SourceAirway& segment : source)
      AddSegment(segment);
    NumberPoints();
    for (const Segment& segment : segments)
      WriteSegment(segment);
    for (const std::size_t point : order)
      WritePoint(points[point]);
    return std::move(files);
  }

 private:
  // A point that is a navaid lies where the navaid lies, to the last digit: a
  // route through both must not hop between them.
  AirwayEnd AtItsNavaid(AirwayEnd end) const {
    if (const auto navaid = navaidPlaces.Find(end.ident, end.position))
      end.position = navaidsByNumber[*navaid]->position;
    return end;
  }

  std::size_t PointOf(const AirwayEnd& end) {
    const auto [known, fresh] =
        pointPlaces.try_emplace({end.ident, end.position.lat, end.position.lon}, points.size());
    if (fresh) points.push_back({end, {}, {}, 0});
    return known->second;
  }

  void AddSegment(const SourceAirway& source) {
    const AirwayEnd begin = AtItsNavaid(source.from), end = AtItsNavaid(source.to);
    const std::size_t from = PointOf(begin);
    const std::size_t to = PointOf(end);
    Link link{to, {}, 0, LevelText(source.base), LevelText(source.top)};
    const Position a = Rounded(begin.position), b = Rounded(end.position);
    link.distance = GreatCircleDistance(a.lat, a.lon, b.lat, b.lon);
    for (const std::string& name : source.names) {
      link.airway = name;
      const bool forward = source.direction != AirwayDirection::backward && AddLink(from, link, source.high);
      Link back = link;
      back.to = from;
      const bool backward = source.direction != AirwayDirection::forward && AddLink(to, back, source.high);
      const auto [low, high] = std::minmax(from, to);
      const bool fresh = segmentsSeen.insert({low, high, source.high, link.airway.Text()}).second;
      if (fresh) segments.push_back({from, link, source.high});
      if (!forward && !backward) ++files.repeatedSegments;
    }
  }

  bool AddLink(std::size_t from, const Link& link, bool high) {
    if (!linksSeen.insert({from, link.to, high, link.airway.Text()}).second) return false;
    (high ? points[from].high : points[from].low).push_back(link);
    return true;
  }

  void NumberPoints() {
    order.resize(points.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    if (order.size() > lastRow) {
      std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return points[a].low.size() + points[a].high.size() > points[b].low.size() + points[b].high.size();
      });
      files.pointsLeftOut = order.size() - lastRow;
      order.resize(lastRow);
      std::sort(order.begin(), order.end());
    }
    files.intersections = order.size();
    std::int32_t row = 0;
    for (const std::size_t point : order) {
      points[point].row = ++row;
      files.points.Add(points[point].end.ident, points[point].end.position, static_cast<std::size_t>(row));
    }
  }

  void IndexNavaids() {
    for (const auto* list : {&navaids.vors, &navaids.dmes, &navaids.ndbs}) {
      for (const SourceNavaid& navaid : *list) {
        navaidPlaces.Add(navaid.ident, navaid.position, navaidsByNumber.size());
        navaidsByNumber.push_back(&navaid);
      }
    }
  }

  void WriteSegment(const Segment& segment) {
    AirwaySegmentFileRecord record;
    record.strName = segment.link.airway.View();
    record.lngFrom = points[segment.from].row;
    record.lngTo = points[segment.link.to].row;
    record.sngLength = segment.link.distance;
    record.strUpper = segment.link.highest;
    record.strLower = segment.link.lowest;
    if (record.lngFrom == 0 || record.lngTo == 0) {
      ++files.segmentsLeftOut;
      return;
    }
    AppendRecord(segment.high ? files.jetways : files.vicways, record);
    ++(segment.high ? files.highSegments : files.lowSegments);
  }

  // Links to points in the table; the shortest if there are too many.
  std::vector<Link> Written(const std::vector<Link>& links) {
    std::vector<Link> kept;
    std::copy_if(links.begin(), links.end(), std::back_inserter(kept),
                 [&](const Link& link) { return points[link.to].row > 0; });
    if (kept.size() > mostLinks) {
      files.linksLeftOut += kept.size() - mostLinks;
      std::stable_sort(kept.begin(), kept.end(),
                       [](const Link& a, const Link& b) { return a.distance < b.distance; });
      kept.resize(mostLinks);
    }
    return kept;
  }

  void WritePoint(const Point& point) {
    const std::vector<Link> low = Written(point.low), high = Written(point.high);
    const Position position = Rounded(point.end.position);
    const auto navaid = navaidPlaces.Find(point.end.ident, point.end.position);
    IntersectionFileRecord record;
    record.lngIndex = point.row;
    record.strRegion = point.end.region;
    record.strCode = point.end.ident;
    record.strName =
        navaid && !navaidsByNumber[*navaid]->name.empty() ? navaidsByNumber[*navaid]->name : point.end.ident;
    record.sngLat = position.lat;
    record.sngLon = position.lon;
    record.sngMagVar = Single(variationAt(point.end.position));
    record.bytLowAlt = static_cast<std::uint8_t>(low.size());
    record.bytHighAlt = static_cast<std::uint8_t>(high.size());
    if (!low.empty() || !high.empty()) record.strAirwayType = low.empty() ? "H" : high.empty() ? "L" : "B";
    AppendRecord(files.dijinter, record);
    for (const Link& link : low)
      WriteLink(link);
    for (const Link& link : high)
      WriteLink(link);
    files.lowLinks += low.size();
    files.highLinks += high.size();
  }

  void WriteLink(const Link& link) {
    ConnectionFileRecord record;
    record.lngNext = points[link.to].row;
    record.strAirway = link.airway;
    record.sngDistance = link.distance;
    record.strMinAlt = link.lowest;
    record.strMaxAlt = link.highest;
    AppendRecord(files.dijinter, record);
  }

  static Position Rounded(SourcePosition p) { return {Single(p.lat), Single(p.lon)}; }

  const NavData& navaids;
  const std::function<double(SourcePosition)>& variationAt;
  std::size_t lastRow;
  AirwayFiles files;
  std::vector<Point> points;
  std::vector<Segment> segments;
  std::vector<std::size_t> order;  // points in the order of their rows
  // Ends of segments are one point only where the source gives them one position.
  std::map<std::tuple<std::string, double, double>, std::size_t> pointPlaces;
  IdentPlaces navaidPlaces;
  std::vector<const SourceNavaid*> navaidsByNumber;
  std::set<std::tuple<std::size_t, std::size_t, bool, std::string>> linksSeen;
  std::set<std::tuple<std::size_t, std::size_t, bool, std::string>> segmentsSeen;
};

}  // namespace

AirwayFiles MakeAirwayFiles(std::span<const SourceAirway> segments, const NavData& navaids,
                            const std::function<double(SourcePosition)>& variationAt, std::size_t lastRow) {
  return AirwayFilesMaker(navaids, variationAt, lastRow).Make(segments);
}
