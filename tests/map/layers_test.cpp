// The list of layers as a whole.
#include <gtest/gtest.h>

#include <algorithm>

#include "map/range_steps.h"
#include "tests/map/painted.h"

namespace {

TEST(DrawingOrder, IsTheOneOfThePlacesWhateverTheListHolds) {
  auto layers = DatabaseLayers();
  std::vector<std::string_view> names;
  for (const MapLayer& layer : layers)
    names.push_back(layer.name);
  std::reverse(layers.begin(), layers.end());
  const auto ordered = InDrawingOrder(layers);
  for (std::size_t i = 1; i < ordered.size(); ++i)
    EXPECT_LT(ordered[i - 1].place, ordered[i].place) << ordered[i].name;
  const auto placeOf = [&](std::string_view name) {
    return std::find_if(ordered.begin(), ordered.end(),
                        [&](const MapLayer& layer) { return layer.name == name; }) -
           ordered.begin();
  };
  // The order that a pilot sees.
  const std::vector<std::string_view> seen = {"coastlines", "airports",     "jet", "victor",
                                              "vor",        "ils",          "ndb", "intersections",
                                              "fixes",      "userwaypoints"};
  for (std::size_t i = 1; i < seen.size(); ++i)
    EXPECT_LT(placeOf(seen[i - 1]), placeOf(seen[i])) << seen[i];
  EXPECT_LT(placeOf("userwaypoints"), static_cast<std::ptrdiff_t>(ordered.size()));
}

TEST(DrawingOrder, KeepsLayersOfOnePlaceAsTheyCome) {
  const auto layer = [](LayerPlace place, std::string_view name) {
    return MapLayer{place, name, {}, {}, {}};
  };
  const auto ordered = InDrawingOrder({layer(LayerPlace::weather, "b"), layer(LayerPlace::weather, "a"),
                                       layer(LayerPlace::vors, "v"), layer(LayerPlace::grid, "g")});
  std::string names;
  for (const MapLayer& one : ordered)
    names += one.name;
  EXPECT_EQ(names, "gbav");
}

TEST(SteppingBack, ByRangeUnlessThereIsRoom) {
  constexpr std::array<RangeStep, 2> steps = {{{50, 0.8F}, {200, 0.4F}}};
  EXPECT_EQ(ValueAt(steps, 50), 0.8F);
  EXPECT_EQ(ValueAt(steps, 75), 0.4F);
  EXPECT_EQ(ValueAt(steps, 6000), 0.4F) << "beyond the last step as in it";
  EXPECT_FLOAT_EQ(WithRoom(0.4F, 0, 100), 0.9F);
  EXPECT_FLOAT_EQ(WithRoom(0.4F, 50, 100), 0.65F);
  EXPECT_FLOAT_EQ(WithRoom(0.4F, 5000, 100), 0.4F);
  EXPECT_EQ(WithRoom(1, 0, 100), 1) << "never less than it was";
}

}  // namespace
