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

QIcon LineIcon(const QString& name) {
  LoadIcons();
  QFile file(":/icons/" + name + ".svg");
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new LineIconEngine(file.readAll()));
}
