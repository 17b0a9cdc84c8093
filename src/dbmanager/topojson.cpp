#include "dbmanager/topojson.h"

#include <cmath>
#include <map>
#include <nlohmann/json.hpp>
#include <set>

#include "dbmanager/source_error.h"

namespace {

using Json = nlohmann::json;
using Arc = std::vector<SourcePosition>;

class TopologyReader {
 public:
  TopologyReader(const Json& document, std::string_view source) : document(document), source(source) {}

  Outlines Read(std::string_view collection) {
    ReadArcs();
    Outlines outlines;
    for (const Json& geometry : document.at("objects").at(std::string(collection)).at("geometries")) {
      outlines.objects.push_back(ReadObject(geometry));
      for (const std::size_t arc : arcsOfObject)
        ++usedBy[arc];
    }
    for (const auto& [arc, objects] : usedBy) {
      if (objects == 2) outlines.sharedArcs.push_back(arcs[arc]);
    }
    return outlines;
  }

 private:
  [[noreturn]] void Fail(const std::string& what) const { throw BuildError(source + ": " + what); }

  // Quantised coordinates are steps from point to point.
  void ReadArcs() {
    const Json& transform = document.at("transform");
    const double lonScale = transform.at("scale").at(0), latScale = transform.at("scale").at(1);
    const double west = transform.at("translate").at(0), south = transform.at("translate").at(1);
    for (const Json& steps : document.at("arcs")) {
      Arc& arc = arcs.emplace_back();
      double x = 0, y = 0;
      for (const Json& step : steps) {
        x += step.at(0).get<double>();
        y += step.at(1).get<double>();
        const SourcePosition point{y * latScale + south, x * lonScale + west};
        if (!(std::abs(point.lat) <= 90.001) || !(std::abs(point.lon) <= 180.001))
          Fail("a point is outside the globe");
        arc.push_back(point);
      }
    }
  }

  OutlineObject ReadObject(const Json& geometry) {
    OutlineObject object;
    arcsOfObject.clear();
    object.id = TextOf(geometry, "id");
    if (geometry.contains("properties")) object.name = TextOf(geometry.at("properties"), "name");
    const std::string type = TextOf(geometry, "type");
    if (type == "Polygon") {
      object.polygons.push_back(ReadPolygon(geometry.at("arcs")));
    } else if (type == "MultiPolygon") {
      for (const Json& polygon : geometry.at("arcs"))
        object.polygons.push_back(ReadPolygon(polygon));
    }
    return object;
  }

  // Empty if there is no such text: a geometry may have a null type.
  static std::string TextOf(const Json& object, const char* key) {
    const auto found = object.find(key);
    return found != object.end() && found->is_string() ? found->get<std::string>() : "";
  }

  OutlinePolygon ReadPolygon(const Json& rings) {
    OutlinePolygon polygon;
    for (const Json& references : rings)
      polygon.rings.push_back(ReadRing(references));
    return polygon;
  }

  // A negative reference is the complement of an arc's number: the arc backwards.
  OutlineRing ReadRing(const Json& references) {
    OutlineRing ring;
    for (const Json& reference : references) {
      const auto number = reference.get<std::int64_t>();
      const auto index = static_cast<std::size_t>(number < 0 ? ~number : number);
      if (index >= arcs.size()) Fail("a ring names an arc that is not there");
      arcsOfObject.insert(index);
      const Arc& arc = arcs[index];
      pointsTaken += arc.size();
      if (pointsTaken > mostPoints) Fail("the rings have too many points");
      const std::size_t skip = ring.empty() ? 0 : 1;
      if (arc.size() <= skip) continue;
      if (number < 0) {
        ring.insert(ring.end(), arc.rbegin() + static_cast<std::ptrdiff_t>(skip), arc.rend());
      } else {
        ring.insert(ring.end(), arc.begin() + static_cast<std::ptrdiff_t>(skip), arc.end());
      }
    }
    return ring;
  }

  static constexpr std::size_t mostPoints = 50'000'000;

  const Json& document;
  std::string source;
  std::vector<Arc> arcs;
  std::set<std::size_t> arcsOfObject;
  std::map<std::size_t, int> usedBy;
  std::size_t pointsTaken = 0;
};

}  // namespace

Outlines ReadTopoJson(std::string_view text, std::string_view collection, std::string_view source) {
  try {
    const Json document = Json::parse(text);
    return TopologyReader(document, source).Read(collection);
  } catch (const Json::exception& error) {
    throw BuildError(std::string(source) + ": " + error.what());
  }
}
