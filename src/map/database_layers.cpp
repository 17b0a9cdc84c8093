#include "map/airport_layer.h"
#include "map/airway_layer.h"
#include "map/map_layer.h"
#include "map/world_layer.h"

std::vector<MapLayer> DatabaseLayers() {
  return {WorldLayer(), AirportLayer(), JetAirwayLayer(), VictorAirwayLayer()};
}
