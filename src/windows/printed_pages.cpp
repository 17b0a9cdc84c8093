#include "windows/printed_pages.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPdfWriter>
#include <algorithm>
#include <cmath>

namespace {

constexpr double pointUnits = paperUnitsPerInch / 72;
constexpr double mmUnits = paperUnitsPerInch / 25.4;
constexpr QMarginsF margins(16 * mmUnits, 12 * mmUnits, 12 * mmUnits, 10 * mmUnits);  // room to punch holes
constexpr double lineHeight = 1.12;                                                   // of the font's
constexpr double blockGap = 7 * pointUnits;
constexpr double closeGap = 2 * pointUnits;
constexpr double indent = 14 * pointUnits;     // of lines below a heading without labels
constexpr double labelGap = 6 * pointUnits;    // between a label and its text
constexpr double columnGap = 13 * pointUnits;  // between the columns of a table
constexpr double leastRest = 80 * pointUnits;  // of the column that takes the rest
constexpr double mostForLabels = 0.45;         // of the width
constexpr std::size_t mostRowsKeptTogether = 4;

// Small paper is held nearer to the eye.
double FontScaleOn(QSizeF paper) {
  constexpr double smallPaper = 180 * mmUnits;
  return paper.width() < smallPaper ? 0.84 : 1;
}

QString ToQString(const std::string& text) {
  return QString::fromStdString(text).trimmed();
}

double PointsOf(PaperFont font) {
  switch (font) {
    case PaperFont::title:
      return 15;
    case PaperFont::heading:
      return 12.5;
    case PaperFont::small:
      return 8.5;
    case PaperFont::strong:
    case PaperFont::body:
      break;
  }
  return 10.5;
}

// Widths and heights of texts; each font is looked up once.
class Ruler {
 public:
  explicit Ruler(double fontScale) {
    for (const PaperFont font :
         {PaperFont::title, PaperFont::heading, PaperFont::strong, PaperFont::body, PaperFont::small})
      metrics.emplace_back(FontOf(font, fontScale));
  }

  double Width(const QString& text, PaperFont font) const { return Metrics(font).horizontalAdvance(text); }
  double LineHeight(PaperFont font) const { return Metrics(font).height() * lineHeight; }

  // The text in lines no wider than width: broken at blanks, a longer word anywhere.
  QStringList Wrapped(const QString& text, PaperFont font, double width) const {
    QStringList lines;
    QString line;
    for (QString word : text.split(' ')) {
      const QString longer = line.isEmpty() ? word : line + " " + word;
      if (Width(longer, font) <= width) {
        line = longer;
        continue;
      }
      if (!line.trimmed().isEmpty()) lines << line.trimmed();
      while (Width(word, font) > width && word.size() > 1) {
        const qsizetype fits = Fitting(word, font, width);
        lines << word.left(fits);
        word = word.mid(fits);
      }
      line = word;
    }
    if (!line.trimmed().isEmpty() || lines.isEmpty()) lines << line.trimmed();
    return lines;
  }

 private:
  qsizetype Fitting(const QString& word, PaperFont font, double width) const {
    qsizetype count = word.size();
    while (count > 1 && Width(word.left(count), font) > width)
      --count;
    return count;
  }

  const QFontMetricsF& Metrics(PaperFont font) const { return metrics[static_cast<std::size_t>(font)]; }

  std::vector<QFontMetricsF> metrics;
};

// A strip across the page that is never torn: a line, or a row of a table. The
// places of its texts count from its upper left corner.
struct Strip {
  double gap = 0;  // above it, unless it is the first of its page
  double height = 0;
  std::vector<PlacedText> texts;
  bool ruled = false;  // a line below it
  bool faint = false;  // a thin one
  bool keepWithNext = false;
  int head = -1;  // the strip that stands above this one's table
};

// Turns a section into strips.
class StripMaker {
 public:
  StripMaker(const Ruler& ruler, double width) : ruler(ruler), width(width) {}

  std::vector<Strip> StripsOf(const PrintedSection& section) {
    textLeft = TextLeftOf(section);
    for (const PrintedBlock& block : section.blocks)
      AddBlock(block);
    return std::move(strips);
  }

 private:
  // Where texts begin beside the widest label of a section.
  double TextLeftOf(const PrintedSection& section) const {
    double widest = 0;
    for (const PrintedBlock& block : section.blocks)
      for (const PrintedLine& line : block.lines)
        widest = std::max(widest, ruler.Width(ToQString(line.label), PaperFont::strong));
    return widest > 0 ? std::min(widest + labelGap, width * mostForLabels) : indent;
  }

  void AddBlock(const PrintedBlock& block) {
    const std::size_t first = strips.size();
    if (!block.heading.empty())
      for (const QString& line : ruler.Wrapped(ToQString(block.heading), PaperFont::strong, width))
        AddText(0, line, PaperFont::strong);
    for (const PrintedLine& line : block.lines)
      AddLine(line);
    const bool together = block.table.rows.size() <= mostRowsKeptTogether;
    if (!block.table.columns.empty()) AddTable(block.table, 0);
    if (strips.size() == first) return;
    strips[first].gap = block.close ? closeGap : blockGap;
    for (std::size_t i = first; i + 1 < strips.size(); ++i)
      if (together || strips[i].head < 0) strips[i].keepWithNext = true;
  }

  Strip& AddText(double left, const QString& text, PaperFont font) {
    Strip& strip = strips.emplace_back();
    strip.height = ruler.LineHeight(font);
    strip.texts.push_back({{left, 0, ruler.Width(text, font), strip.height}, text, font});
    return strip;
  }

  void AddLine(const PrintedLine& line) {
    const QStringList lines = ruler.Wrapped(ToQString(line.text), PaperFont::body, width - textLeft);
    const QStringList labels = ruler.Wrapped(ToQString(line.label), PaperFont::strong, textLeft - labelGap);
    for (qsizetype i = 0; i < std::max(lines.size(), labels.size()); ++i) {
      Strip& strip = AddText(textLeft, i < lines.size() ? lines[i] : QString(), PaperFont::body);
      if (i < labels.size() && !labels[i].isEmpty())
        strip.texts.push_back(
            {{0, 0, ruler.Width(labels[i], PaperFont::strong), strip.height}, labels[i], PaperFont::strong});
    }
  }

  // The widths of the columns from first on, as many as fit beside each other.
  std::vector<double> WidthsOf(const PrintedTable& table, std::size_t first) const {
    std::vector<double> widths;
    double used = 0;
    for (std::size_t column = first; column < table.columns.size(); ++column) {
      double widest = ruler.Width(ToQString(table.columns[column].heading), PaperFont::strong);
      for (const auto& row : table.rows)
        widest = std::max(widest, ruler.Width(ToQString(row[column]), PaperFont::body));
      if (table.columns[column].takesRest) widest = std::min(widest, leastRest);
      if (!widths.empty() && used + columnGap + widest > width) break;
      used += (widths.empty() ? 0 : columnGap) + widest;
      widths.push_back(std::min(widest, width));
    }
    for (std::size_t i = 0; i < widths.size(); ++i)
      if (table.columns[first + i].takesRest) widths[i] += std::max(0.0, width - used);
    return widths;
  }

  void AddTable(const PrintedTable& table, std::size_t first) {
    const std::vector<double> widths = WidthsOf(table, first);
    std::vector<std::string> headings;
    for (const PrintedColumn& column : table.columns)
      headings.push_back(column.heading);
    AddRow(table, first, widths, headings, PaperFont::strong);
    const int head = static_cast<int>(strips.size()) - 1;
    strips.back().ruled = strips.back().keepWithNext = true;
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
      AddRow(table, first, widths, table.rows[row], PaperFont::body);
      Strip& strip = strips.back();
      strip.head = head;
      strip.ruled = strip.faint = table.rows.size() > 1;
      // Neither the first nor the last row stands alone.
      strip.keepWithNext = row == 0 || row + 2 == table.rows.size();
    }
    strips.back().keepWithNext = false;
    if (first + widths.size() < table.columns.size()) {
      strips.back().keepWithNext = true;
      AddTable(table, first + widths.size());
    }
  }

  void AddRow(const PrintedTable& table, std::size_t first, const std::vector<double>& widths,
              const std::vector<std::string>& cells, PaperFont font) {
    Strip& strip = strips.emplace_back();
    const double height = ruler.LineHeight(font);
    double left = 0;
    for (std::size_t i = 0; i < widths.size(); ++i) {
      const QStringList lines = ruler.Wrapped(ToQString(cells[first + i]), font, widths[i] + 1);
      for (qsizetype line = 0; line < lines.size(); ++line) {
        const double textWidth = ruler.Width(lines[line], font);
        const bool right = table.columns[first + i].align == PrintedAlign::right;
        const double x = right ? left + widths[i] - textWidth : left;
        const double y = static_cast<double>(line) * height;
        if (!lines[line].isEmpty()) strip.texts.push_back({{x, y, textWidth, height}, lines[line], font});
        strip.height = std::max(strip.height, y + height);
      }
      left += widths[i] + columnGap;
    }
  }

  const Ruler& ruler;
  double width;
  double textLeft = 0;
  std::vector<Strip> strips;
};

// Puts strips on pages.
class PageMaker {
 public:
  PageMaker(const PrintedPlan& plan, QSizeF paper)
      : plan(plan), fontScale(FontScaleOn(paper)), ruler(fontScale) {
    result.paper = paper;
    area = QRectF(QPointF(), result.paper).marginsRemoved(margins);
    result.printed = area;
    bottom = area.bottom() - 2 * ruler.LineHeight(PaperFont::small);
  }

  PlacedPages Make() {
    for (const PrintedSection& section : plan.sections)
      AddSection(section);
    if (plan.map) AddMap();
    for (std::size_t i = 0; i < result.pages.size(); ++i)
      AddFoot(i);
    return std::move(result);
  }

 private:
  PlacedPage& Page() { return result.pages.back(); }

  // Draws lines of text from y down; y comes back below them.
  void Write(const std::string& text, PaperFont font) {
    for (const QString& line : ruler.Wrapped(ToQString(text), font, area.width())) {
      const double height = ruler.LineHeight(font);
      Page().texts.push_back({{area.left(), y, ruler.Width(line, font), height}, line, font});
      y += height;
    }
  }

  void WriteHeading() {
    Write(plan.title + (plan.routeType.empty() ? "" : "  " + plan.routeType), PaperFont::title);
    Write(plan.routeLine, PaperFont::strong);
    y += blockGap / 2;
    Page().rules.push_back({QLineF(area.left(), y, area.right(), y)});
    y += blockGap;
  }

  void BeginPage(const PrintedSection& section, bool first) {
    result.pages.emplace_back().fontScale = fontScale;
    y = area.top();
    if (!plan.title.empty()) WriteHeading();
    if (section.numbered)
      Write(section.heading + std::to_string(result.pages.size()), PaperFont::heading);
    else if (first && !section.heading.empty())
      Write(section.heading, PaperFont::heading);
    y += blockGap / 2;
    top = y;
  }

  void Place(const Strip& strip) {
    if (y > top) y += strip.gap;
    for (PlacedText text : strip.texts) {
      if (text.text.isEmpty()) continue;
      text.box.translate(area.left(), y);
      Page().texts.push_back(std::move(text));
    }
    y += strip.height;
    if (strip.ruled) Page().rules.push_back({QLineF(area.left(), y, area.right(), y), strip.faint});
  }

  // The strips from first on that stay on one page, and how high they are.
  static std::size_t EndOfGroup(const std::vector<Strip>& strips, std::size_t first, double& height) {
    std::size_t end = first;
    height = 0;
    for (bool more = true; more && end < strips.size(); ++end) {
      height += strips[end].gap + strips[end].height;
      more = strips[end].keepWithNext;
    }
    return end;
  }

  void AddSection(const PrintedSection& section) {
    const std::vector<Strip> strips = StripMaker(ruler, area.width()).StripsOf(section);
    BeginPage(section, true);
    const auto turnPage = [&](const Strip& next) {
      BeginPage(section, false);
      if (next.head >= 0) Place(strips[static_cast<std::size_t>(next.head)]);
    };
    for (std::size_t first = 0; first < strips.size();) {
      double height = 0;
      const std::size_t end = EndOfGroup(strips, first, height);
      if (y + height > bottom && y > top) turnPage(strips[first]);
      // A group that is higher than a page is torn where it must be.
      for (; first < end; ++first) {
        if (y + strips[first].gap + strips[first].height > bottom && y > top) turnPage(strips[first]);
        Place(strips[first]);
      }
    }
  }

  void AddMap() {
    BeginPage({"Route Map", false, {}}, true);
    Page().map = QRectF(area.left(), y, area.width(), bottom - y);
  }

  void AddFoot(std::size_t index) {
    PlacedPage& page = result.pages[index];
    const double height = ruler.LineHeight(PaperFont::small);
    const auto write = [&](const QString& text, bool right) {
      const double width = ruler.Width(text, PaperFont::small);
      const double left = right ? area.right() - width : area.left();
      page.texts.push_back({{left, area.bottom() - height, width, height}, text, PaperFont::small});
    };
    write("For flight simulation only", false);
    write(QString("Page %1 of %2").arg(index + 1).arg(result.pages.size()), true);
  }

  const PrintedPlan& plan;
  double fontScale;
  Ruler ruler;
  PlacedPages result;
  QRectF area;
  double bottom = 0;
  double y = 0;
  double top = 0;  // where the first strip of the page stands
};

}  // namespace

QFont FontOf(PaperFont font, double scale) {
  QFont result;
  result.setFamilies({"Arial", "Liberation Sans", "Nimbus Sans", "DejaVu Sans"});
  result.setPixelSize(static_cast<int>(std::lround(PointsOf(font) * scale * pointUnits)));
  result.setBold(font == PaperFont::title || font == PaperFont::heading || font == PaperFont::strong);
  result.setHintingPreference(QFont::PreferNoHinting);
  return result;
}

QPageSize PaperNamed(const QString& name) {
  if (name == "A5") return QPageSize(QPageSize::A5);
  return QPageSize(name == "Letter" ? QPageSize::Letter : QPageSize::A4);
}

PlacedPages LayOutPages(const PrintedPlan& plan, const QPageSize& paper) {
  return PageMaker(plan, paper.size(QPageSize::Point) * pointUnits).Make();
}

void DrawPage(QPainter& painter, const PlacedPage& page, const MapDrawer& drawMap) {
  if (!page.map.isEmpty() && drawMap) drawMap(painter, page.map);
  for (const PlacedRule& rule : page.rules) {
    painter.setPen(QPen(rule.faint ? QColor(0xB0, 0xB0, 0xB0) : QColor(Qt::black),
                        (rule.faint ? 0.4 : 0.8) * pointUnits));
    painter.drawLine(rule.line);
  }
  painter.setPen(Qt::black);
  for (const PlacedText& text : page.texts) {
    const QFont font = FontOf(text.font, page.fontScale);
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    const double above = (text.box.height() - metrics.height()) / 2;
    painter.drawText(QPointF(text.box.left(), text.box.top() + above + metrics.ascent()), text.text);
  }
}

bool PrintPages(QPagedPaintDevice& device, const PrintedPlan& plan, const MapDrawer& drawMap) {
  QPageLayout layout = device.pageLayout();
  layout.setMode(QPageLayout::FullPageMode);
  layout.setOrientation(QPageLayout::Portrait);
  layout.setMargins({});
  device.setPageLayout(layout);
  const PlacedPages placed = LayOutPages(plan, layout.pageSize());
  QPainter painter;
  if (placed.pages.empty() || !painter.begin(&device)) return false;
  for (std::size_t i = 0; i < placed.pages.size(); ++i) {
    if (i > 0 && !device.newPage()) return false;
    painter.save();
    painter.scale(painter.device()->logicalDpiX() / paperUnitsPerInch,
                  painter.device()->logicalDpiY() / paperUnitsPerInch);
    DrawPage(painter, placed.pages[i], drawMap);
    painter.restore();
  }
  return painter.end();
}

QByteArray PdfOf(const PrintedPlan& plan, const QPageSize& paper, const MapDrawer& drawMap) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(static_cast<int>(paperUnitsPerInch));
  writer.setCreator("Velmora");
  writer.setTitle(QString::fromStdString(plan.title + " " + plan.routeLine));
  writer.setPageSize(paper);
  return PrintPages(writer, plan, drawMap) ? bytes : QByteArray();
}
