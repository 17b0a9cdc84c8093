#include "map/label_placer.h"

#include <gtest/gtest.h>

#include "tests/map/recording_surface.h"

namespace {

struct Box {
  float left, top, right, bottom;
  bool Overlaps(const Box& other) const {
    return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
  }
};

TEST(PlaceLabel, KeepsLabelsApartAndOnThePage) {
  RecordingSurface surface;
  LabelPlacer labels(surface);
  std::vector<Box> placed;
  int refused = 0;
  for (int i = 0; i < 600; ++i) {
    const float x = static_cast<float>(i * 7919 % 11600) - 100;
    const float y = static_cast<float>(i * 104729 % 7200) - 100;
    const auto place = labels.PlaceLabel(x, y, "EDDF", LabelKind::airport);
    if (!place) {
      ++refused;
      continue;
    }
    const Box box{place->x, place->y, place->x + surface.TextWidth("EDDF"),
                  place->y + surface.TextHeight("")};
    EXPECT_GE(box.left, 0);
    EXPECT_GE(box.top, 0);
    EXPECT_LT(box.right, surface.ScaleWidth());
    EXPECT_LT(box.bottom, surface.ScaleHeight());
    for (const Box& other : placed)
      EXPECT_FALSE(box.Overlaps(other));
    placed.push_back(box);
  }
  EXPECT_GT(placed.size(), 300u);
  EXPECT_GT(refused, 0);
}

TEST(PlaceLabel, MovesAroundItsSymbolExceptOnAirways) {
  RecordingSurface surface;
  LabelPlacer labels(surface);
  ASSERT_TRUE(labels.PlaceLabel(5000, 3000, "AAAA", LabelKind::airport));
  EXPECT_FALSE(labels.PlaceLabel(5000, 3000, "UL607", LabelKind::airway));
  const auto second = labels.PlaceLabel(5000, 3000, "BBBB", LabelKind::airport);
  ASSERT_TRUE(second);
  EXPECT_LT(second->y, 3000);
}

}  // namespace
