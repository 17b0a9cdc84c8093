#include "dbmanager/apt_pavement.h"

#include <array>

namespace {

// Parts that a curved side is drawn with.
constexpr int curveParts = 4;

GroundPoint Rounded(SourcePosition p) {
  return {static_cast<float>(p.lat), static_cast<float>(p.lon)};
}

SourcePosition Mirrored(SourcePosition control, SourcePosition node) {
  return {2 * node.lat - control.lat, 2 * node.lon - control.lon};
}

SourcePosition Mix(SourcePosition a, SourcePosition b, double t) {
  return {a.lat + (b.lat - a.lat) * t, a.lon + (b.lon - a.lon) * t};
}

// De Casteljau's construction; two control points or one.
SourcePosition OnCurve(SourcePosition a, const std::optional<SourcePosition>& leaving,
                       const std::optional<SourcePosition>& arriving, SourcePosition b, double t) {
  if (leaving && arriving) {
    const SourcePosition p = Mix(a, *leaving, t), q = Mix(*leaving, *arriving, t), r = Mix(*arriving, b, t);
    return Mix(Mix(p, q, t), Mix(q, r, t), t);
  }
  const SourcePosition control = leaving ? *leaving : *arriving;
  return Mix(Mix(a, control, t), Mix(control, b, t), t);
}

// Line codes of a taxiway's centre, plain or with a black border.
bool IsTaxiCentreline(int code) {
  return code == 1 || code == 7 || code == 51 || code == 57;
}

}  // namespace

void PavementReader::Begin(Shape newShape) {
  shape = newShape;
  firstRing = true;
  nodes.clear();
}

const char* PavementReader::ReadNode(int row, const LineFields& fields, SourceAirport& airport) {
  if (shape == Shape::none) return "node outside an outline or line";
  if (shape == Shape::boundary) return nullptr;
  const bool curved = row % 2 == 0;  // 112, 114, 116
  const auto position = ParsePosition(fields, 1);
  if (!position) return "no position";
  Node node{*position, std::nullopt, false};
  if (curved) {
    node.control = ParsePosition(fields, 3);
    if (!node.control) return "no control point";
  }
  for (std::size_t i = curved ? 5 : 3; i < fields.Count(); ++i) {
    if (IsTaxiCentreline(fields.Whole(i).value_or(0))) node.taxiCentreline = true;
  }
  nodes.push_back(node);
  if (row >= 113) Finish(row < 115, airport);
  return nullptr;
}

void PavementReader::Finish(bool closed, SourceAirport& airport) {
  if (shape == Shape::line) {
    FinishLine(closed, airport);
  } else if (nodes.size() >= 3) {
    SourcePavement ring;
    ring.hole = !firstRing;
    for (std::size_t i = 0; i < nodes.size(); ++i) {
      const Node& from = nodes[i];
      const Node& to = nodes[(i + 1) % nodes.size()];
      ring.points.push_back(Rounded(from.position));
      std::optional<SourcePosition> arriving;
      if (to.control) arriving = Mirrored(*to.control, to.position);
      if (!from.control && !arriving) continue;
      for (int part = 1; part < curveParts; ++part) {
        ring.points.push_back(Rounded(
            OnCurve(from.position, from.control, arriving, to.position, double{1} * part / curveParts)));
      }
    }
    airport.pavement.push_back(std::move(ring));
  }
  firstRing = false;
  nodes.clear();
}

void PavementReader::FinishLine(bool closed, SourceAirport& airport) const {
  const std::size_t sides = closed ? nodes.size() : nodes.size() - 1;
  for (std::size_t i = 0; i < sides; ++i) {
    const Node& from = nodes[i];
    const Node& to = nodes[(i + 1) % nodes.size()];
    if (!from.taxiCentreline) continue;
    std::optional<SourcePosition> arriving;
    if (to.control) arriving = Mirrored(*to.control, to.position);
    const int parts = from.control || arriving ? curveParts : 1;
    SourcePosition last = from.position;
    for (int part = 1; part <= parts; ++part) {
      const SourcePosition next = part == parts ? to.position
                                                : OnCurve(from.position, from.control, arriving, to.position,
                                                          double{1} * part / parts);
      airport.centrelines.push_back({Rounded(last), Rounded(next), "", ' '});
      last = next;
    }
  }
}
