#include "flightplan/airway_graph.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/numbers.h"
#include "navdata/geodesy.h"

namespace {

bool TakesPart(const NavDatabase& database, const ConnectionRec& link) {
  return IsNode(database, link.lngNext) && link.sngDistance >= 0.0f;
}

// The bits of a 16-bit number with a gap behind each.
std::uint32_t Spread(std::uint32_t bits) {
  bits = (bits | bits << 8) & 0x00FF00FFu;
  bits = (bits | bits << 4) & 0x0F0F0F0Fu;
  bits = (bits | bits << 2) & 0x33333333u;
  return (bits | bits << 1) & 0x55555555u;
}

// Place on a Z-order curve over the map (G. M. Morton, 1966).
std::uint32_t PlaceOnCurve(const IntersectionRec& node) {
  const auto cell = [](double part) {
    return static_cast<std::uint32_t>(std::clamp(CutToInt(part * 65535.0), 0, 65535));
  };
  return Spread(cell((node.sngLat + 90.0) / 180.0)) << 1 | Spread(cell((node.sngLon + 180.0) / 360.0));
}

}  // namespace

bool IsNode(const NavDatabase& database, int node) {
  return node > 0 && static_cast<std::size_t>(node) < database.intersections.size();
}

bool IsOnNetwork(const NavDatabase& database, int node, char level) {
  if (!IsNode(database, node)) return false;
  const char nodeLevel = AirwayLevel(database.intersections[static_cast<std::size_t>(node)]);
  return nodeLevel == 'X' || nodeLevel == level;
}

std::span<const ConnectionRec> NetworkLinks(const NavDatabase& database, int node, char level) {
  if (node < 0 || static_cast<std::size_t>(node) >= database.intersections.size()) return {};
  const IntersectionRec& intersection = database.intersections[static_cast<std::size_t>(node)];
  return level == 'V' ? database.LowAlt(intersection) : database.HighAlt(intersection);
}

AirwayGraph::AirwayGraph(const NavDatabase& database, char level)
    : vertices(database.intersections.size(), -1) {
  NumberVertices(database, level);
  AddArcs(database, level);
}

int AirwayGraph::VertexOf(int node) const {
  if (node < 0 || static_cast<std::size_t>(node) >= vertices.size()) return -1;
  return vertices[static_cast<std::size_t>(node)];
}

int AirwayGraph::SourceOf(std::uint32_t arc) const {
  return static_cast<int>(std::upper_bound(firstArc.begin(), firstArc.end(), arc) - firstArc.begin()) - 1;
}

AirwayGraph::Direction AirwayGraph::DirectionTo(float lat, float lon) {
  const double phi = DegToRad(lat);
  const double lambda = DegToRad(lon);
  return {static_cast<float>(std::cos(phi) * std::cos(lambda)),
          static_cast<float>(std::cos(phi) * std::sin(lambda)), static_cast<float>(std::sin(phi))};
}

void AirwayGraph::NumberVertices(const NavDatabase& database, char level) {
  std::vector<bool> touched(database.intersections.size());
  for (int node = 1; IsNode(database, node); ++node) {
    for (const ConnectionRec& link : NetworkLinks(database, node, level)) {
      if (!TakesPart(database, link)) continue;
      touched[static_cast<std::size_t>(node)] = true;
      touched[static_cast<std::size_t>(link.lngNext)] = true;
    }
  }
  std::vector<std::pair<std::uint32_t, std::int32_t>> places;
  for (std::size_t node = 1; node < touched.size(); ++node) {
    if (touched[node]) {
      places.emplace_back(PlaceOnCurve(database.intersections[node]), static_cast<std::int32_t>(node));
    }
  }
  std::sort(places.begin(), places.end());
  for (const auto& [place, node] : places) {
    vertices[static_cast<std::size_t>(node)] = static_cast<std::int32_t>(nodes.size());
    nodes.push_back(node);
  }
}

void AirwayGraph::AddArcs(const NavDatabase& database, char level) {
  for (const std::int32_t node : nodes) {
    const IntersectionRec& at = database.intersections[static_cast<std::size_t>(node)];
    directions.push_back(DirectionTo(at.sngLat, at.sngLon));
    firstArc.push_back(static_cast<std::uint32_t>(arcs.size()));
    for (const ConnectionRec& link : NetworkLinks(database, node, level)) {
      if (!TakesPart(database, link)) continue;
      arcs.push_back({VertexOf(link.lngNext), link.sngDistance});
      links.push_back(&link);
      NoteLength(at, database.intersections[static_cast<std::size_t>(link.lngNext)], link.sngDistance);
    }
  }
  firstArc.push_back(static_cast<std::uint32_t>(arcs.size()));
}

void AirwayGraph::NoteLength(const IntersectionRec& from, const IntersectionRec& to, float length) {
  const double distance = GreatCircleDistance(from.sngLat, from.sngLon, to.sngLat, to.sngLon);
  // A place that is no number tells nothing about distances: none is relied on then.
  const double ratio = distance >= 0.0 ? length / distance : 0.0;
  if (!(ratio >= shortestLinkRatio)) shortestLinkRatio = std::isnan(ratio) ? 0.0 : ratio;
}
