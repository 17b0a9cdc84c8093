// Draws the two pictures that the program brings along: VLM_intro.bmp, shown
// while it starts, and velmora.png, the window's icon. Run once after a change:
//   draw_intro FOLDER
// It needs nothing but Qt, so the pictures can be made again anywhere.
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <optional>

namespace {

constexpr double degrees = 3.14159265358979323846 / 180;

// The globe as seen from far above (viewLat, viewLon).
struct Globe {
  QPointF centre;
  double radius;
  double viewLat = 38 * degrees;
  double viewLon = -32 * degrees;

  // Nothing for a point on the far side.
  std::optional<QPointF> Project(double lat, double lon) const {
    const double a = lat * degrees;
    const double b = lon * degrees - viewLon;
    if (std::sin(viewLat) * std::sin(a) + std::cos(viewLat) * std::cos(a) * std::cos(b) < 0)
      return std::nullopt;
    return QPointF(centre.x() + radius * std::cos(a) * std::sin(b),
                   centre.y() - radius * (std::cos(viewLat) * std::sin(a) -
                                          std::sin(viewLat) * std::cos(a) * std::cos(b)));
  }
};

template <class PointAt>
QPainterPath VisiblePath(const Globe& globe, int steps, const PointAt& pointAt) {
  QPainterPath path;
  bool drawing = false;
  for (int i = 0; i <= steps; ++i) {
    const QPointF latLon = pointAt(i);
    const auto point = globe.Project(latLon.x(), latLon.y());
    if (point && drawing) path.lineTo(*point);
    if (point && !drawing) path.moveTo(*point);
    drawing = point.has_value();
  }
  return path;
}

void DrawGlobe(QPainter& painter, const Globe& globe, double penWidth) {
  QRadialGradient ball(globe.centre - QPointF(globe.radius * 0.35, globe.radius * 0.45), globe.radius * 1.5);
  ball.setColorAt(0, QColor(34, 74, 122));
  ball.setColorAt(0.55, QColor(17, 41, 77));
  ball.setColorAt(1, QColor(8, 19, 40));
  painter.setPen(Qt::NoPen);
  painter.setBrush(ball);
  painter.drawEllipse(globe.centre, globe.radius, globe.radius);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(140, 178, 220, 62), penWidth));
  for (int lat = -75; lat <= 75; lat += 15) {
    painter.drawPath(VisiblePath(globe, 180, [lat](int i) { return QPointF(lat, -180 + 2 * i); }));
  }
  for (int lon = -180; lon < 180; lon += 15) {
    painter.drawPath(VisiblePath(globe, 90, [lon](int i) { return QPointF(-90 + 2 * i, lon); }));
  }
  painter.setPen(QPen(QColor(150, 190, 232, 110), penWidth * 1.2));
  painter.drawEllipse(globe.centre, globe.radius, globe.radius);
}

// The great circle between two places, as points of latitude and longitude.
QPointF OnGreatCircle(QPointF from, QPointF to, double part) {
  const auto vector = [](QPointF p, double(&v)[3]) {
    v[0] = std::cos(p.x() * degrees) * std::cos(p.y() * degrees);
    v[1] = std::cos(p.x() * degrees) * std::sin(p.y() * degrees);
    v[2] = std::sin(p.x() * degrees);
  };
  double a[3];
  double b[3];
  vector(from, a);
  vector(to, b);
  const double angle = std::acos(a[0] * b[0] + a[1] * b[1] + a[2] * b[2]);
  const double wa = std::sin((1 - part) * angle) / std::sin(angle);
  const double wb = std::sin(part * angle) / std::sin(angle);
  const double x = wa * a[0] + wb * b[0];
  const double y = wa * a[1] + wb * b[1];
  const double z = wa * a[2] + wb * b[2];
  return {std::atan2(z, std::hypot(x, y)) / degrees, std::atan2(y, x) / degrees};
}

void DrawRoute(QPainter& painter, const Globe& globe, double width) {
  const QPointF frankfurt(50.03, 8.57);
  const QPointF newYork(40.64, -73.78);
  const auto route =
      VisiblePath(globe, 120, [&](int i) { return OnGreatCircle(frankfurt, newYork, i / 120.0); });
  painter.setPen(QPen(QColor(255, 122, 92, 60), width * 4, Qt::SolidLine, Qt::RoundCap));
  painter.drawPath(route);
  painter.setPen(QPen(QColor(255, 142, 108), width, Qt::SolidLine, Qt::RoundCap));
  painter.drawPath(route);
  painter.setPen(Qt::NoPen);
  for (const double part : {0.0, 0.25, 0.5, 0.75, 1.0}) {
    const bool end = part == 0.0 || part == 1.0;
    const QPointF place = OnGreatCircle(frankfurt, newYork, part);
    painter.setBrush(end ? QColor(255, 255, 255) : QColor(255, 170, 140));
    const double radius = end ? width * 2.2 : width * 1.3;
    painter.drawEllipse(*globe.Project(place.x(), place.y()), radius, radius);
  }
}

QImage IntroPicture() {
  QImage picture(640, 400, QImage::Format_RGB32);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  QLinearGradient sky(0, 0, 640, 400);
  sky.setColorAt(0, QColor(11, 21, 40));
  sky.setColorAt(1, QColor(5, 10, 22));
  painter.fillRect(picture.rect(), sky);
  const Globe globe{QPointF(452, 262), 262};
  DrawGlobe(painter, globe, 1.0);
  DrawRoute(painter, globe, 2.2);
  QLinearGradient shade(0, 0, 380, 0);
  shade.setColorAt(0, QColor(9, 17, 34, 235));
  shade.setColorAt(1, QColor(9, 17, 34, 0));
  painter.fillRect(QRect(0, 0, 380, 400), shade);
  QFont name;
  name.setFamilies({"Inter Display", "Inter", "DejaVu Sans"});
  name.setPixelSize(54);
  name.setWeight(QFont::Light);
  name.setLetterSpacing(QFont::AbsoluteSpacing, 1.5);
  painter.setFont(name);
  painter.setPen(QColor(240, 245, 252));
  painter.drawText(QPointF(36, 92), "Velmora");
  QFont line = name;
  line.setPixelSize(15);
  line.setWeight(QFont::Normal);
  line.setLetterSpacing(QFont::AbsoluteSpacing, 0.4);
  painter.setFont(line);
  painter.setPen(QColor(158, 184, 214));
  painter.drawText(QPointF(39, 122), "Flight planner and moving map");
  return picture;
}

QImage Icon() {
  QImage icon(256, 256, QImage::Format_ARGB32);
  icon.fill(Qt::transparent);
  QPainter painter(&icon);
  painter.setRenderHint(QPainter::Antialiasing);
  const Globe globe{QPointF(128, 128), 120};
  DrawGlobe(painter, globe, 2.0);
  DrawRoute(painter, globe, 3.6);
  return icon;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const QDir folder(argc > 1 ? argv[1] : ".");
  const bool done =
      IntroPicture().convertToFormat(QImage::Format_RGB888).save(folder.filePath("VLM_intro.bmp"), "BMP") &&
      Icon().save(folder.filePath("velmora.png"), "PNG");
  return done ? 0 : 1;
}
