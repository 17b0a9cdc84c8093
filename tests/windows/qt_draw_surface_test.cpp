#include "windows/qt_draw_surface.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QPdfWriter>

#include <cmath>
#include <limits>

namespace {

constexpr std::int32_t red = 0x0000FF;
constexpr std::int32_t blue = 0xFF0000;

QImage Blank(int width = 1132, int height = 700) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(Qt::black);
  return image;
}

int LitPixels(const QImage& image) {
  int lit = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      lit += (image.pixel(x, y) & 0xFFFFFF) != 0 ? 1 : 0;
  return lit;
}

TEST(PagePlacement, CoversThePictureAtOneScale) {
  const std::pair<double, double> sizes[] = {{1600, 1000}, {1132.5, 700}, {800, 800}, {1900, 500}};
  for (const auto& [width, height] : sizes) {
    const PagePlacement place(width, height);
    EXPECT_NEAR(place.PixelsPerUnit(), std::max(width / 11325, height / 7000), 1e-9);
    const QPointF middle = place.ToPixel(mapScaleWidth / 2.0, mapScaleHeight / 2.0);
    EXPECT_NEAR(middle.x(), width / 2, 1e-6);
    EXPECT_NEAR(middle.y(), height / 2, 1e-6);
    EXPECT_LE(place.ToPixel(0, 0).x(), 1e-6);
    EXPECT_GE(place.ToPixel(mapScaleWidth, mapScaleHeight).y(), height - 1e-6);
    const SurfacePoint back = place.ToUnits(place.ToPixel(1234, 567));
    EXPECT_NEAR(back.x, 1234, 0.01);
    EXPECT_NEAR(back.y, 567, 0.01);
  }
}

TEST(QtDrawSurface, ColoursHaveRedInTheLowByte) {
  QImage image = Blank();
  QtDrawSurface surface(image);
  surface.Clear(blue);
  EXPECT_EQ(image.pixelColor(3, 3), QColor(0, 0, 255));
  const SurfacePoint square[] = {{5000, 3000}, {6000, 3000}, {6000, 4000}, {5000, 4000}};
  surface.Polygon(square, red);
  EXPECT_EQ(image.pixelColor(550, 350), QColor(255, 0, 0));
}

TEST(QtDrawSurface, DrawsWhereItIsTold) {
  QImage image = Blank();
  QtDrawSurface surface(image);
  surface.Line(1000, 2000, 9000, 2000, red);
  EXPECT_GT(qRed(image.pixel(500, 199)) + qRed(image.pixel(500, 200)), 200);
  EXPECT_EQ(qRed(image.pixel(500, 204)), 0);
  EXPECT_EQ(qRed(image.pixel(60, 200)), 0);
  surface.Circle(5000, 5000, 1000, blue);
  EXPECT_GT(qBlue(image.pixel(600, 500)) + qBlue(image.pixel(599, 500)), 120);
  EXPECT_EQ(qBlue(image.pixel(500, 500)), 0) << "not filled";
  surface.FillStyle = FillStyleKind::solid;
  surface.FillColor = red;
  surface.Circle(5000, 5000, 100, red);
  EXPECT_EQ(image.pixelColor(500, 500), QColor(255, 0, 0));
}

TEST(QtDrawSurface, OpacityMixes) {
  QImage image = Blank();
  QtDrawSurface surface(image);
  surface.Opacity = 0.5F;
  surface.DrawWidth = 9;
  surface.PSet(5000, 5000, red);
  EXPECT_NEAR(qRed(image.pixel(499, 499)), 127, 3);
}

TEST(QtDrawSurface, ALineOfAnySlopeCoversItsLength) {
  for (int degrees = 0; degrees < 360; degrees += 7) {
    QImage image = Blank();
    QtDrawSurface surface(image);
    const double angle = degrees * 3.14159265 / 180;
    const auto x = static_cast<float>(5660 + 3000 * std::cos(angle));
    const auto y = static_cast<float>(3500 + 3000 * std::sin(angle));
    surface.Line(5660, 3500, x, y, red);
    double weight = 0;
    for (int row = 0; row < image.height(); ++row)
      for (int column = 0; column < image.width(); ++column)
        weight += qRed(image.pixel(column, row)) / 255.0;
    // One full pixel's weight for each step along the longer axis: 300 pixels long.
    EXPECT_NEAR(weight, 300 * std::max(std::abs(std::cos(angle)), std::abs(std::sin(angle))), 4) << degrees;
  }
}

TEST(QtDrawSurface, SurvivesCoordinatesFarOffThePage) {
  QImage image = Blank();
  QtDrawSurface surface(image);
  const float far = 1e9F;
  const float nan = std::numeric_limits<float>::quiet_NaN();
  for (const float width : {1.0F, 3.0F}) {
    surface.DrawWidth = width;
    surface.Line(far, far, 2 * far, far, red);
    surface.PSet(far, -far, red);
    surface.PSet(nan, nan, red);
    surface.Circle(-far, far, 50, red);
    surface.Line(nan, 0, 100, nan, red);
  }
  EXPECT_EQ(LitPixels(image), 0);
  surface.Line(-far, 3500, far, 3500, red);
  EXPECT_GT(LitPixels(image), 1000) << "a line through the page is seen whatever its ends";
}

TEST(QtDrawSurface, TextIsMeasuredInUnitsAndGrowsWithTheFont) {
  QImage image = Blank();
  QtDrawSurface surface(image);
  const float narrow = surface.TextWidth("EDDF");
  EXPECT_GT(surface.TextWidth("EDDFEDDF"), 1.8F * narrow);
  surface.FontSize = 18;
  EXPECT_NEAR(surface.TextWidth("EDDF"), 2 * narrow, narrow * 0.15F);
  surface.CurrentX = 5000;
  surface.CurrentY = 3000;
  surface.ForeColor = red;
  surface.Print("EDDF");
  int inside = 0;
  const QRect box(498, 298, static_cast<int>(surface.TextWidth("EDDF") / 10) + 5,
                  static_cast<int>(surface.TextHeight("EDDF") / 10) + 5);
  for (int y = box.top(); y <= box.bottom(); ++y)
    for (int x = box.left(); x <= box.right(); ++x)
      inside += qRed(image.pixel(x, y)) > 0 ? 1 : 0;
  EXPECT_GT(inside, 50);
  EXPECT_EQ(inside, LitPixels(image)) << "nothing is printed outside the box that was measured";
}

// Lines, shapes, discs and a text, on any surface.
void DrawSomeOfEach(DrawSurface& surface) {
  surface.Clear(0x400000);
  const SurfacePoint shape[] = {{1000, 1000}, {5000, 1500}, {4000, 5000}, {1500, 4000}};
  surface.Opacity = 0.6F;
  surface.Polygon(shape, 0x00FF00);
  surface.Opacity = 1;
  for (const float width : {1.0F, 2.5F}) {
    surface.DrawWidth = width;
    surface.Line(500, 6000, 10000, 500 * width, 0x00FFFF);
    surface.Polyline(shape, 0xFFFFFF);
  }
  surface.Circle(8000, 4000, 200, 0xFF00FF);
  surface.FillStyle = FillStyleKind::solid;
  surface.FillColor = 0x0000FF;
  surface.Circle(9000, 4000, 150, 0xFFFFFF);
  surface.DrawWidth = 4;
  surface.PSet(9500, 5000, 0xFFFFFF);
  surface.FontSize = 14;
  surface.ForeColor = 0xFFFFFF;
  surface.CurrentX = 6000;
  surface.CurrentY = 5500;
  surface.Print("EDDF Frankfurt");
}

TEST(QtDrawSurface, DrawsWhatTheGeneralPainterDraws) {
  QImage fast = Blank();
  QImage general = Blank();
  {
    QtDrawSurface surface(fast);
    DrawSomeOfEach(surface);
    QPainter painter(&general);
    QtPainterSurface other(painter, PagePlacement(general.width(), general.height()));
    DrawSomeOfEach(other);
  }
  int different = 0;
  for (int y = 0; y < fast.height(); ++y) {
    for (int x = 0; x < fast.width(); ++x) {
      const QRgb a = fast.pixel(x, y);
      const QRgb b = general.pixel(x, y);
      const int most = std::max(
          {std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
      different += most > 96 ? 1 : 0;
    }
  }
  // Rims of strokes and letters may differ in how they are smoothed.
  EXPECT_LT(different, 400) << "of " << fast.width() * fast.height() << " pixels";
}

TEST(QtPainterSurface, PrintsOnPages) {
  QBuffer pages;
  pages.open(QIODevice::WriteOnly);
  QPdfWriter printer(&pages);
  printer.setResolution(300);
  QPainter painter(&printer);
  QtPainterSurface surface(painter, PagePlacement(printer.width(), printer.height()), 300 / 96.0);
  EXPECT_NEAR(surface.TextWidth("EDDF") / surface.TextHeight("EDDF"), 1.6F, 0.6F);
  DrawSomeOfEach(surface);
  const qsizetype onePage = pages.size();
  printer.newPage();
  DrawSomeOfEach(surface);
  painter.end();
  EXPECT_TRUE(pages.data().startsWith("%PDF"));
  EXPECT_EQ(pages.data().count("/Type /Page\n"), 2);
  EXPECT_GT(pages.size(), onePage);
}

}  // namespace
