#include "windows/frmPrintFP.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLocale>
#include <QPrintDialog>
#include <QPrinter>
#include <QVBoxLayout>

#include "base/error_trap.h"
#include "base/files.h"
#include "windows/code_page_text.h"
#include "windows/route_map_page.h"
#include "windows/window_place.h"

namespace {

constexpr int leftWidth = 250;

struct Choice {
  const char* name;
  const char* text;
  bool PrintChoices::*flag;
};

constexpr std::array<Choice, 5> choiceList = {
    {{"chckGFI", QT_TRANSLATE_NOOP("frmPrintFP", "&General Flight Information"), &PrintChoices::information},
     {"chckWPList", QT_TRANSLATE_NOOP("frmPrintFP", "&Waypoint List"), &PrintChoices::waypoints},
     {"chckDepArr", QT_TRANSLATE_NOOP("frmPrintFP", "&Departure and Arrival Routes"),
      &PrintChoices::procedures},
     {"chckCtrz", QT_TRANSLATE_NOOP("frmPrintFP", "Control &Zone Information"), &PrintChoices::zones},
     {"chckMap", QT_TRANSLATE_NOOP("frmPrintFP", "&Map of the route"), &PrintChoices::map}}};

QString UsualPaper() {
  return QLocale::system().measurementSystem() == QLocale::ImperialUSSystem ? "Letter" : "A4";
}

}  // namespace

frmPrintFP::frmPrintFP(Session& session, PlanEditor& editor, MessageBox& messages, PrintMemory& memory,
                       QWidget* parent)
    : QDialog(parent), session(session), editor(editor), messages(messages), memory(memory) {
  setObjectName("frmPrintFP");
  setWindowTitle(tr("Print the flight plan"));
  ResizeWithinScreen(*this, QSize(1000, 820));
  print = [this](const PrintedPlan& plan, const QPageSize& paper, const MapDrawer& drawer) {
    return OpenPrinter(plan, paper, drawer);
  };
  askPdfFile = [this](const QString& proposal) {
    return QFileDialog::getSaveFileName(this, tr("Save the pages as"), proposal, tr("PDF files (*.pdf)"));
  };
  departures = Procedures(ProcedureKind::sid);
  arrivals = Procedures(ProcedureKind::star);
  drawMap = RouteMapDrawer(session.plan, session.database, session.settings);
  if (memory.paper.isEmpty()) memory.paper = UsualPaper();
  auto* columns = new QHBoxLayout(this);
  columns->setContentsMargins(20, 18, 14, 14);
  columns->setSpacing(18);
  auto* left = new QVBoxLayout;
  left->setSpacing(10);
  columns->addLayout(left);
  BuildChoices(left);
  BuildPaper(left);
  left->addStretch(1);
  BuildButtons(left);
  preview = new PagePreview(this);
  preview->setObjectName("picPreview");
  preview->setFocusPolicy(Qt::StrongFocus);
  columns->addWidget(preview, 1);
  ShowPages();
}

void frmPrintFP::BuildChoices(QVBoxLayout* left) {
  auto* caption = new QLabel(tr("Pages"), this);
  caption->setProperty("quiet", true);
  caption->setFixedWidth(leftWidth);
  left->addWidget(caption);
  const bool hasProcedures = !session.plan.SidName.empty() || !session.plan.StarName.empty();
  for (std::size_t i = 0; i < choiceList.size(); ++i) {
    const Choice& choice = choiceList[i];
    auto* box = new QCheckBox(tr(choice.text), this);
    box->setObjectName(choice.name);
    box->setChecked(memory.choices.*choice.flag);
    if (choice.flag == &PrintChoices::procedures && !hasProcedures) {
      box->setChecked(false);
      box->setEnabled(false);
      box->setToolTip(tr("The plan has no departure and no arrival route."));
    }
    connect(box, &QCheckBox::toggled, this, &frmPrintFP::TakeChoices);
    left->addWidget(box);
    boxes[i] = box;
  }
}

void frmPrintFP::BuildPaper(QVBoxLayout* left) {
  auto* caption = new QLabel(tr("Pa&per"), this);
  caption->setProperty("quiet", true);
  cmbPaper = new QComboBox(this);
  cmbPaper->setObjectName("cmbPaper");
  cmbPaper->addItems({"A4", "A5", "Letter"});
  cmbPaper->setCurrentText(memory.paper);
  caption->setBuddy(cmbPaper);
  left->addSpacing(8);
  left->addWidget(caption);
  left->addWidget(cmbPaper);
  connect(cmbPaper, &QComboBox::currentTextChanged, this, &frmPrintFP::TakeChoices);
  lblPages = new QLabel(this);
  lblPages->setObjectName("lblPages");
  lblPages->setProperty("quiet", true);
  left->addWidget(lblPages);
}

void frmPrintFP::BuildButtons(QVBoxLayout* left) {
  const auto add = [&](const QString& text, const QString& name, const std::function<void()>& pressed) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, pressed);
    left->addWidget(button);
    return button;
  };
  cmdOK = add(tr("P&rint..."), "cmdOK", [this] { Print(); });
  cmdOK->setDefault(true);
  cmdPDF = add(tr("PDF &file..."), "cmdPDF", [this] { WritePdf(); });
  add(tr("&Close"), "cmdClose", [this] { reject(); });
}

void frmPrintFP::Trapped(std::string_view head, const std::function<void()>& body) {
  std::string report;
  if (RunTrapped(head, body, [&](const std::string& text) { report = text; })) return;
  session.protocol.WriteError(report);
  messages.Show(report, MessageIcon::exclamation);
}

// None where their file cannot be read: the plan's own steps are printed.
std::vector<SidStarEntry> frmPrintFP::Procedures(ProcedureKind kind) const {
  const FlightPlan& plan = session.plan;
  if ((kind == ProcedureKind::sid ? plan.SidName : plan.StarName).empty()) return {};
  try {
    return editor.Procedures(kind);
  } catch (const std::runtime_error& error) {
    session.protocol.WriteError("frmPrintFP Procedures (" + std::string(error.what()));
    return {};
  }
}

void frmPrintFP::TakeChoices() {
  for (std::size_t i = 0; i < choiceList.size(); ++i)
    if (boxes[i]->isEnabled()) memory.choices.*choiceList[i].flag = boxes[i]->isChecked();
  memory.paper = cmbPaper->currentText();
  ShowPages();
}

void frmPrintFP::ShowPages() {
  Trapped("frmPrintFP ShowPages (", [&] {
    PrintChoices choices;
    for (std::size_t i = 0; i < choiceList.size(); ++i)
      choices.*choiceList[i].flag = boxes[i]->isChecked();
    printed = BuildPrintedPlan(
        {session.plan, editor.Context(), session.settings, editor.RouteText(), departures, arrivals},
        choices);
    preview->ShowPages(LayOutPages(printed, PaperNamed(memory.paper)), drawMap);
    const int count = static_cast<int>(preview->Pages().pages.size());
    lblPages->setText(count == 0   ? tr("Choose what is to be printed.")
                      : count == 1 ? tr("1 page")
                                   : tr("%1 pages").arg(count));
    cmdOK->setEnabled(count > 0);
    cmdPDF->setEnabled(count > 0);
  });
}

bool frmPrintFP::OpenPrinter(const PrintedPlan& plan, const QPageSize& paper, const MapDrawer& drawer) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(tr("Velmora Flight Plan"));
  printer.setPageSize(paper);
  QPrintDialog dialog(&printer, this);
  return dialog.exec() != QDialog::Accepted || PrintPages(printer, plan, drawer);
}

void frmPrintFP::Print() {
  Trapped("frmPrintFP cmdOK (", [&] {
    if (!print(printed, PaperNamed(memory.paper), drawMap))
      messages.Show("The printer takes no page.", MessageIcon::exclamation);
  });
}

void frmPrintFP::WritePdf() {
  Trapped("frmPrintFP cmdPDF (", [&] {
    const FlightPlan& plan = session.plan;
    const QString name = FromCodePage(plan.Row(0).Code.View()) + " to " +
                         FromCodePage(plan.Row(plan.DestinationRow()).Code.View()) + ".pdf";
    const QString folder = memory.folder.isEmpty() ? QDir::homePath() : memory.folder;
    QString path = askPdfFile(QDir(folder).filePath(name));
    if (path.isEmpty()) return;
    if (!path.endsWith(".pdf", Qt::CaseInsensitive)) path += ".pdf";
    memory.folder = QFileInfo(path).absolutePath();
    const QByteArray pdf = PdfOf(printed, PaperNamed(memory.paper), drawMap);
    std::string reason;
    const std::string_view bytes(pdf.constData(), static_cast<std::size_t>(pdf.size()));
    if (!ReplaceFile(std::filesystem::path(path.toStdString()), bytes, &reason))
      messages.Show("The PDF file could not be written.\n\n" + reason, MessageIcon::exclamation);
  });
}
