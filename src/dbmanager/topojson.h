// World outlines in the TopoJSON format: polygons that share their sides
// ("arcs"), so a side that two countries share is a border and any other a
// coast.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "dbmanager/source_lines.h"

using OutlineRing = std::vector<SourcePosition>;

struct OutlinePolygon {
  std::vector<OutlineRing> rings;  // the first is the outer one; closed, the first point repeated
};

struct OutlineObject {
  std::string id;    // "276"; empty if it has none
  std::string name;  // UTF-8
  std::vector<OutlinePolygon> polygons;
};

struct Outlines {
  std::vector<OutlineObject> objects;
  std::vector<std::vector<SourcePosition>> sharedArcs;  // sides of exactly two objects
};

// Reads the geometries of the object collection with this name. Throws
// BuildError (source is the file's name) if the text is no such document or a
// reference in it leads nowhere.
Outlines ReadTopoJson(std::string_view text, std::string_view collection, std::string_view source);
