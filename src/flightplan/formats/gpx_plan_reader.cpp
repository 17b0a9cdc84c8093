// GPX: its first route with points; without one the first track, which is the
// way that was flown.
#include "flightplan/formats/foreign_readers.h"
#include "flightplan/formats/foreign_text.h"

namespace {

std::string Text(pugi::xml_node node, const char* name) {
  return std::string(Stripped(node.child_value(name)));
}

ForeignPoint PointOf(pugi::xml_node node) {
  ForeignPoint point;
  point.code = Text(node, "name");
  point.name = Text(node, "desc");
  point.kind = KindNamed(Text(node, "type"));
  point.place = PlaceOf(NumberOf(node.attribute("lat").value()), NumberOf(node.attribute("lon").value()));
  return point;
}

// The height that all points between the ends have in common; 0: none.
double CommonFeet(const std::vector<double>& metres) {
  if (metres.size() < 3) return 0;
  for (std::size_t i = 1; i + 1 < metres.size(); ++i)
    if (metres[i] != metres[1]) return 0;
  return metres[1] / metresPerFoot;
}

void TakeRoute(ForeignPlan& plan, pugi::xml_node route) {
  std::vector<double> metres;
  for (const pugi::xml_node node : route.children("rtept")) {
    plan.points.push_back(PointOf(node));
    metres.push_back(NumberOf(Text(node, "ele")).value_or(0));
  }
  plan.cruiseFeet = CommonFeet(metres);
}

void TakeTrack(ForeignPlan& plan, pugi::xml_node track) {
  plan.isTrack = true;
  for (const pugi::xml_node segment : track.children("trkseg")) {
    for (const pugi::xml_node node : segment.children("trkpt")) {
      ForeignPoint point = PointOf(node);
      point.kind = PointKind::user;
      plan.points.push_back(std::move(point));
    }
  }
}

std::size_t CountOf(pugi::xml_node root, const char* name) {
  std::size_t count = 0;
  for ([[maybe_unused]] const pugi::xml_node node : root.children(name))
    ++count;
  return count;
}

}  // namespace

ForeignPlan ReadGpxPlan(pugi::xml_node root) {
  ForeignPlan plan;
  plan.format = "GPX route";
  for (const pugi::xml_node route : root.children("rte"))
    if (plan.points.empty()) TakeRoute(plan, route);
  const std::size_t routes = CountOf(root, "rte");
  std::size_t tracks = CountOf(root, "trk");
  if (plan.points.empty() && tracks > 0) {
    plan.format = "GPX track";
    TakeTrack(plan, root.child("trk"));
    --tracks;
  }
  if (routes > 1) plan.problems.Add("the file has " + std::to_string(routes) + " routes; the first is taken");
  if (tracks > 0) plan.problems.Add(std::to_string(tracks) + " tracks of the file are not taken");
  return plan;
}
