#include "windows/icons.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

#include "windows/style.h"

// Resources of a library are not linked in by themselves.
static void LoadIcons() {
  Q_INIT_RESOURCE(icons);
}

namespace {

class LineIconEngine : public QIconEngine {
 public:
  explicit LineIconEngine(QByteArray drawing) : drawing(std::move(drawing)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    QByteArray colored = drawing;
    colored.replace("currentColor", IconColor(mode, state).name().toLatin1());
    QSvgRenderer renderer(colored);
    renderer.render(painter, rect);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return picture;
  }

  QIconEngine* clone() const override { return new LineIconEngine(*this); }
  bool isNull() override { return drawing.isEmpty(); }

 private:
  QByteArray drawing;
};

}  // namespace

static QByteArray Drawing(const QString& name) {
  LoadIcons();
  QFile file(":/icons/" + name + ".svg");
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QIcon LineIcon(const QString& name) {
  const QByteArray drawing = Drawing(name);
  return drawing.isEmpty() ? QIcon() : QIcon(new LineIconEngine(drawing));
}

QPixmap LinePicture(const QString& name, const QColor& color, int size, qreal scale) {
  QByteArray drawing = Drawing(name);
  if (drawing.isEmpty()) return {};
  drawing.replace("currentColor", color.name().toLatin1());
  drawing.replace("stroke-width=\"1.6\"", "stroke-width=\"2.1\"");
  QPixmap picture(QSizeF(size * scale, size * scale).toSize());
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  QSvgRenderer(drawing).render(&painter);
  painter.end();
  picture.setDevicePixelRatio(scale);
  return picture;
}
