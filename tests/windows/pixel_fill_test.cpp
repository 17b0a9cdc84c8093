#include "windows/pixel_fill.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <cmath>
#include <limits>
#include <random>

namespace {

constexpr QRgb white = 0xFFFFFFFF;

QImage Blank(int width = 200, int height = 150) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(Qt::black);
  return image;
}

QImage Filled(std::vector<QPointF> shape, float opacity = 1, QImage image = Blank()) {
  PixelFill fill;
  fill.Fill(PixelGrid(image), shape, white, opacity);
  return image;
}

// In pixels.
double LitArea(const QImage& image) {
  double area = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      area += qRed(image.pixel(x, y)) / 255.0;
  return area;
}

TEST(PixelFill, CoversAShapesArea) {
  const struct {
    const char* name;
    std::vector<QPointF> shape;
    double area;
  } cases[] = {
      {"whole pixels", {{10, 10}, {20, 10}, {20, 30}, {10, 30}}, 200},
      {"parts of pixels", {{10.25, 10.5}, {20.75, 10.5}, {20.75, 12}, {10.25, 12}}, 15.75},
      {"within one pixel", {{10.25, 10.25}, {10.75, 10.25}, {10.75, 10.75}, {10.25, 10.75}}, 0.25},
      {"a triangle", {{10, 10}, {110.5, 20}, {30, 90}}, 3920},
      {"the other way round", {{10, 30}, {20, 30}, {20, 10}, {10, 10}}, 200},
      {"cut by every edge", {{-1e6, -1e6}, {1e6, -1e6}, {1e6, 1e6}, {-1e6, 1e6}}, 200 * 150},
      {"cut on the left", {{-50, 10}, {50, 10}, {50, 20}, {-50, 20}}, 500},
      {"cut on the right", {{150, 10}, {450, 10}, {450, 20}, {150, 20}}, 500},
      {"a slanted edge through the left rim", {{-10, 0}, {10, 20}, {-10, 20}}, 50},
      {"outside", {{-50, 10}, {-10, 10}, {-10, 20}}, 0},
      {"nothing but a line", {{10, 10}, {20, 20}}, 0},
      {"crossed twice is empty",
       {{0, 0}, {40, 0}, {40, 40}, {0, 40}, {0, 0}, {10, 10}, {10, 30}, {30, 30}, {30, 10}, {10, 10}},
       1200},
      {"the same turn twice is empty",
       {{0, 0}, {40, 0}, {40, 40}, {0, 40}, {0, 0}, {10, 10}, {30, 10}, {30, 30}, {10, 30}, {10, 10}},
       1200},
  };
  for (const auto& c : cases) {
    EXPECT_NEAR(LitArea(Filled(c.shape)), c.area, 0.005 * c.area + 0.1) << c.name;
    EXPECT_NEAR(LitArea(Filled(c.shape, 0.5F)), c.area / 2, 0.005 * c.area + 0.1)
        << c.name << ", half seen through";
  }
}

TEST(PixelFill, LooksLikeTheGeneralPainters) {
  std::mt19937 random(3);
  std::uniform_real_distribution<double> x(-60, 260);
  std::uniform_real_distribution<double> y(-60, 210);
  for (int i = 0; i < 200; ++i) {
    std::vector<QPointF> shape;
    for (unsigned point = 0; point < 3 + random() % 9; ++point)
      shape.emplace_back(x(random), y(random));
    QImage expected = Blank();
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawPolygon(shape.data(), static_cast<int>(shape.size()), Qt::OddEvenFill);
    painter.end();
    const QImage filled = Filled(shape);
    int different = 0;
    for (int row = 0; row < filled.height(); ++row)
      for (int column = 0; column < filled.width(); ++column)
        different +=
            std::abs(qRed(filled.pixel(column, row)) - qRed(expected.pixel(column, row))) > 24 ? 1 : 0;
    // Where edges cross within a pixel the two count differently.
    EXPECT_LT(different, 60) << i;
  }
}

TEST(PixelFill, DrawsNothingOfWhatIsNoNumber) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinite = std::numeric_limits<double>::infinity();
  EXPECT_EQ(LitArea(Filled({{10, 10}, {nan, 20}, {30, 30}})), 0);
  EXPECT_EQ(LitArea(Filled({{10, 10}, {infinite, 20}, {30, 30}})), 0);
  EXPECT_EQ(LitArea(Filled({})), 0);
}

TEST(PixelFill, OneShapeLeavesNothingForTheNext) {
  QImage image = Blank();
  PixelFill fill;
  const std::vector<QPointF> first = {{10, 10}, {60, 12}, {30, 70}};
  const std::vector<QPointF> second = {{100, 20}, {140, 20}, {140, 60}, {100, 60}};
  fill.Fill(PixelGrid(image), first, qRgb(0, 0, 0), 1);
  fill.Fill(PixelGrid(image), second, white, 1);
  EXPECT_EQ(image, Filled(second));
}

}  // namespace
