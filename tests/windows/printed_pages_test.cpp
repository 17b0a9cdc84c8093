// The printed pages: where everything stands on paper, and the window that prints them.
#include "windows/printed_pages.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QTimer>

#include "tests/windows/map_window.h"
#include "windows/frmPrintFP.h"
#include "windows/route_map_page.h"

namespace {

// So many rows, long names and a long paragraph among them.
PrintedPlan LongPlan(int rows) {
  PrintedPlan plan;
  plan.title = "Velmora Flight Plan";
  plan.routeType = "(High Altitude Airways)";
  plan.routeLine = "EDDF (Frankfurt am Main) >>> KJFK (John F Kennedy Intl)";
  PrintedSection& list = plan.sections.emplace_back();
  list.heading = " Waypoints ";
  PrintedTable& table = list.blocks.emplace_back().table;
  table.columns = {{"Code"}, {"Name", PrintedAlign::left, true}, {"Distance", PrintedAlign::right}};
  for (int i = 0; i < rows; ++i)
    table.rows.push_back(
        {"WP" + std::to_string(i),
         i % 7 == 0 ? "A waypoint whose long name takes more than one line of the column for names" : "Name",
         "012 NM"});
  PrintedSection& zones = plan.sections.emplace_back();
  zones.heading = "Control Zone Information - Page: ";
  zones.numbered = true;
  for (int i = 0; i < rows; ++i) {
    PrintedBlock& block = zones.blocks.emplace_back();
    block.heading = "Leg: A to B crossing:";
    for (int line = 0; line <= i % 4; ++line)
      block.lines.push_back({"", "Class: D   ZONE " + std::to_string(line)});
  }
  PrintedBlock& route = plan.sections.emplace_back().blocks.emplace_back();
  std::string words;
  for (int i = 0; i < 60; ++i)
    words += "UL" + std::to_string(600 + i) + " FIX" + std::to_string(i) + " ";
  route.lines = {{"Route String:", words},
                 {"A label of its own that needs two lines or more", "text"},
                 {"", std::string(300, 'W')}};
  plan.map = true;
  return plan;
}

QStringList TextsOf(const PlacedPage& page) {
  QStringList texts;
  for (const PlacedText& text : page.texts)
    texts << text.text;
  return texts;
}

// True if something stands below the text.
bool HasSomethingBelow(const PlacedPage& page, const PlacedText& text, double foot) {
  return std::any_of(page.texts.begin(), page.texts.end(), [&](const PlacedText& other) {
    return other.box.top() > text.box.top() + 1 && other.box.bottom() < foot;
  });
}

class PagesOn : public testing::TestWithParam<const char*> {};

TEST_P(PagesOn, NothingIsCutOrStandsOnSomethingElse) {
  const PlacedPages placed = LayOutPages(LongPlan(100), PaperNamed(GetParam()));
  ASSERT_GT(placed.pages.size(), 5U);
  const double foot = placed.printed.bottom() - 60;
  for (const PlacedPage& page : placed.pages) {
    for (std::size_t i = 0; i < page.texts.size(); ++i) {
      const QRectF box = page.texts[i].box;
      EXPECT_TRUE(placed.printed.adjusted(-1, -1, 1, 1).contains(box)) << page.texts[i].text.toStdString();
      for (std::size_t j = 0; j < i; ++j)
        EXPECT_FALSE(page.texts[j].box.intersects(box.adjusted(1, 1, -1, -1)))
            << page.texts[i].text.toStdString() << " on " << page.texts[j].text.toStdString();
      const bool ends = !HasSomethingBelow(page, page.texts[i], foot);
      EXPECT_FALSE(ends && page.texts[i].text.startsWith("Leg:")) << "a heading ends a page";
    }
  }
}

TEST_P(PagesOn, EachPageHasItsHeadingItsNumberAndTheTablesHead) {
  const PlacedPages placed = LayOutPages(LongPlan(100), PaperNamed(GetParam()));
  const auto count = static_cast<int>(placed.pages.size());
  QStringList all;
  int tablePages = 0;
  for (int i = 0; i < count; ++i) {
    const QStringList texts = TextsOf(placed.pages[static_cast<std::size_t>(i)]);
    all += texts;
    EXPECT_TRUE(texts.first().startsWith("Velmora Flight Plan"));
    EXPECT_TRUE(texts.contains(QString("Page %1 of %2").arg(i + 1).arg(count)));
    const bool hasRows =
        std::any_of(texts.begin(), texts.end(), [](const QString& t) { return t.startsWith("WP"); });
    EXPECT_EQ(texts.count("Code"), hasRows ? 1 : 0);
    tablePages += hasRows ? 1 : 0;
    const bool hasZones = texts.contains("Leg: A to B crossing:");
    EXPECT_EQ(texts.contains(QString("Control Zone Information - Page: %1").arg(i + 1)), hasZones);
    EXPECT_EQ(!placed.pages[static_cast<std::size_t>(i)].map.isEmpty(), i + 1 == count);
  }
  EXPECT_GT(tablePages, 1);
  for (int i = 0; i < 100; ++i)
    EXPECT_EQ(all.count(QString("WP%1").arg(i)), 1) << i;
  EXPECT_EQ(all.count("Waypoints"), 1);
  EXPECT_EQ(all.join("").count("FIX"), 60) << "no word of the route string is lost";
  EXPECT_EQ(all.join("").count('W') - all.join(" ").count("WP") - all.count("Waypoints"), 300);
}

INSTANTIATE_TEST_SUITE_P(Papers, PagesOn, testing::Values("A4", "A5", "Letter"),
                         [](const auto& info) { return std::string(info.param); });

TEST(PrintedPages, ATableTooWideGoesOnBelow) {
  PrintedPlan plan;
  PrintedBlock& block = plan.sections.emplace_back().blocks.emplace_back();
  for (int i = 0; i < 14; ++i) {
    block.table.columns.push_back({"Column " + std::to_string(i), PrintedAlign::right});
    block.table.rows.resize(1);
    block.table.rows[0].push_back(std::to_string(i) + ".00");
  }
  const PlacedPages placed = LayOutPages(plan, PaperNamed("A5"));
  ASSERT_EQ(placed.pages.size(), 1U);
  const QStringList texts = TextsOf(placed.pages[0]);
  for (int i = 0; i < 14; ++i)
    EXPECT_EQ(texts.count(QString("%1.00").arg(i)), 1) << i;
  for (const PlacedText& text : placed.pages[0].texts)
    EXPECT_LE(text.box.right(), placed.printed.right() + 1);
}

int PagesOfPdf(const std::string& pdf) {
  const std::size_t at = pdf.find("/Count ");
  return pdf.starts_with("%PDF") && at != std::string::npos ? std::stoi(pdf.substr(at + 7)) : 0;
}

TEST(PrintedPages, APdfHasThemAll) {
  const PrintedPlan plan = LongPlan(100);
  int maps = 0;
  const QByteArray pdf = PdfOf(plan, PaperNamed("A4"), [&](QPainter&, const QRectF& area) {
    ++maps;
    EXPECT_GT(area.height(), 8 * paperUnitsPerInch);
  });
  EXPECT_EQ(PagesOfPdf(pdf.toStdString()),
            static_cast<int>(LayOutPages(plan, PaperNamed("A4")).pages.size()));
  EXPECT_EQ(maps, 1);
  EXPECT_TRUE(PdfOf({}, PaperNamed("A4"), {}).isEmpty()) << "nothing to print";
}

class PrintWindow : public MapWindow {
 protected:
  // Opens the window from the menu and runs what the pilot does in it.
  void WithPrintWindow(const std::function<void(frmPrintFP&)>& body) {
    bool ran = false;
    QTimer::singleShot(0, [&] {
      auto* dialog = qobject_cast<frmPrintFP*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      body(*dialog);
      ran = true;
      dialog->reject();
    });
    Trigger("mnuPrintPlan");
    EXPECT_TRUE(ran);
  }
  static void Check(frmPrintFP& dialog, const char* name) { dialog.findChild<QCheckBox*>(name)->click(); }
  static int Pages(frmPrintFP& dialog) {
    return static_cast<int>(dialog.findChild<PagePreview*>()->Pages().pages.size());
  }
};

TEST_F(PrintWindow, NeedsAPlan) {
  Open();
  EXPECT_FALSE(Find<QAction>("mnuPrintPlan").isEnabled());
  window->Editor().StartPlan(0, 1);
  EXPECT_TRUE(Find<QAction>("mnuPrintPlan").isEnabled());
  EXPECT_EQ(Find<QAction>("mnuPrintPlan").shortcut(), QKeySequence("Ctrl+P"));
}

TEST_F(PrintWindow, PrintsTheChosenPagesAndRemembersThem) {
  Open().Editor().StartPlan(0, 1);
  WithPrintWindow([&](frmPrintFP& dialog) {
    const auto* procedures = dialog.findChild<QCheckBox*>("chckDepArr");
    EXPECT_FALSE(procedures->isEnabled() || procedures->isChecked()) << "the plan has none";
    EXPECT_EQ(Pages(dialog), 3);
    Check(dialog, "chckCtrz");
    Check(dialog, "chckMap");
    Check(dialog, "chckGFI");
    EXPECT_EQ(Pages(dialog), 2);
    dialog.findChild<QComboBox*>("cmbPaper")->setCurrentText("A5");
    PrintedPlan paper;
    dialog.print = [&](const PrintedPlan& plan, const QPageSize& size, const MapDrawer&) {
      paper = plan;
      EXPECT_EQ(size.id(), QPageSize::A5);
      return false;
    };
    QTest::keyClick(&dialog, Qt::Key_Return);
    ASSERT_EQ(paper.sections.size(), 1U);
    EXPECT_EQ(paper.sections[0].heading, " Waypoints ");
    EXPECT_TRUE(paper.map);
    EXPECT_EQ(messages.texts, (std::vector<std::string>{"The printer takes no page."}));
    Check(dialog, "chckWPList");
    Check(dialog, "chckMap");
    EXPECT_FALSE(dialog.findChild<QPushButton*>("cmdOK")->isEnabled());
    EXPECT_FALSE(dialog.findChild<QPushButton*>("cmdPDF")->isEnabled());
    Check(dialog, "chckWPList");
  });
  WithPrintWindow([&](frmPrintFP& dialog) {
    EXPECT_FALSE(dialog.findChild<QCheckBox*>("chckGFI")->isChecked());
    EXPECT_TRUE(dialog.findChild<QCheckBox*>("chckWPList")->isChecked());
    EXPECT_EQ(dialog.findChild<QComboBox*>("cmbPaper")->currentText(), "A5");
    EXPECT_EQ(Pages(dialog), 1);
  });
  session.plan.SidName = "TEST1A";
  WithPrintWindow([&](frmPrintFP& dialog) {
    EXPECT_TRUE(dialog.findChild<QCheckBox*>("chckDepArr")->isChecked()) << "it is still wanted";
    EXPECT_EQ(Pages(dialog), 2);
  });
}

TEST_F(PrintWindow, ShowsThePagesBelowEachOther) {
  Open().Editor().StartPlan(0, 1);
  WithPrintWindow([&](frmPrintFP& dialog) {
    Check(dialog, "chckMap");
    dialog.resize(1000, 700);
    QApplication::processEvents();
    auto* preview = dialog.findChild<PagePreview*>();
    const auto sheets = preview->widget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    ASSERT_EQ(sheets.size(), Pages(dialog));
    int below = 0;
    for (const QWidget* sheet : sheets) {
      EXPECT_TRUE(sheet->isVisible());
      EXPECT_GE(sheet->y(), below);
      EXPECT_NEAR(sheet->height() / static_cast<double>(sheet->width()), 297.0 / 210, 0.01);
      EXPECT_LE(sheet->geometry().right(), preview->viewport()->width());
      below = sheet->geometry().bottom();
    }
    EXPECT_LE(below, preview->widget()->height());
  });
}

TEST_F(PrintWindow, WritesAPdfWholeOrSaysWhyNot) {
  Open().Editor().StartPlan(0, 1);
  WithPrintWindow([&](frmPrintFP& dialog) {
    Check(dialog, "chckMap");
    QString proposed;
    const QString folderName = QString::fromStdString(folder.Path().string());
    dialog.askPdfFile = [&](const QString& proposal) { return proposed = proposal, folderName + "/plän"; };
    QTest::mouseClick(dialog.findChild<QPushButton*>("cmdPDF"), Qt::LeftButton);
    EXPECT_TRUE(proposed.endsWith("/EDDA to EDDB.pdf"));
    EXPECT_EQ(PagesOfPdf(folder.Read("plän.pdf")), Pages(dialog));
    EXPECT_TRUE(messages.texts.empty());
    dialog.askPdfFile = [&](const QString&) { return folderName + "/missing/plan.pdf"; };
    QTest::mouseClick(dialog.findChild<QPushButton*>("cmdPDF"), Qt::LeftButton);
    ASSERT_EQ(messages.texts.size(), 1U);
    EXPECT_TRUE(messages.texts[0].starts_with("The PDF file could not be written.\n\n"));
    EXPECT_NE(messages.texts[0].find("missing"), std::string::npos);
  });
}

TEST(RouteMap, ShowsTheWholePlanOnUprightPaper) {
  const struct {
    Position from, to;
  } flights[] = {{{50, 8.5F}, {22.3F, 114}}, {{-37, 174.8F}, {21.3F, -157.9F}},
                 {{60, -150}, {60, 30}},     {{78, 15}, {69, 19}},
                 {{0, 0}, {0, 0}},           {{50, 8}, {50, 8.1F}}};
  const VisiblePage page{4900, mapScaleHeight};
  for (const auto& [from, to] : flights) {
    FlightPlan plan;
    for (const Position place : {from, to}) {
      plan.rows.emplace_back().Lat = place.lat;
      plan.rows.back().Lon = place.lon;
    }
    const MapView view = RouteMapView(plan, page);
    for (const PlanWaypoint& row : plan.rows) {
      EXPECT_LT(std::abs(view.LonToX(row.Lon) - mapScaleWidth / 2.0), page.width * 0.43) << from.lon;
      EXPECT_LT(std::abs(view.LatToY(row.Lat) - mapScaleHeight / 2.0), page.height * 0.43) << from.lat;
    }
  }
}

TEST_F(PrintWindow, TheRoutesMapIsDrawnInsideItsArea) {
  Open().Editor().StartPlan(0, 1);
  QImage paper(600, 800, QImage::Format_RGB32);
  paper.fill(Qt::yellow);
  {
    QPainter painter(&paper);
    painter.scale(0.1, 0.1);
    RouteMapDrawer(session.plan, session.database, session.settings)(painter, QRectF(1000, 1000, 4000, 6000));
  }
  EXPECT_EQ(paper.pixelColor(90, 240), QColor(Qt::yellow)) << "left of it";
  EXPECT_EQ(paper.pixelColor(300, 400), QColor(Qt::yellow)) << "below what the route needs";
  // Ten degrees of equator, across the middle of the used part: the route's colour there, white around it.
  int route = 0;
  for (int x = 120; x < 480; ++x)
    for (int y = 230; y < 250; ++y) {
      const QColor color = paper.pixelColor(x, y);
      route += color.red() > color.green() + 60 ? 1 : 0;
    }
  EXPECT_GT(route, 250);
  EXPECT_GT(paper.pixelColor(310, 300).lightness(), 200);
}

}  // namespace
