// Standard departures and arrivals in the main window: their menu, the list
// that one is taken from, and the chart.
#include <QMenu>

#include "windows/frmDepArr.h"
#include "windows/frmDisplaySidStar.h"
#include "windows/frmMap.h"

void frmMap::BuildProceduresMenu(QMenu* plan) {
  QMenu* menu = plan->addMenu(tr("&Procedures"));
  menu->addAction(AddCommand(
      "mnuSelectSid", tr("&Select a SID..."), [this] { SelectProcedure(ProcedureKind::sid); }, "Ctrl+Alt+D"));
  menu->addAction(AddSwitch("mnuDisplaySid", tr("&Display the SID"), &MapSwitches::mnuDisplaySid));
  menu->addAction(AddCommand("mnuDeleteSid", tr("D&elete the SID"),
                             [this] { editor.DeleteProcedure(ProcedureKind::sid); }));
  menu->addSeparator();
  menu->addAction(AddCommand(
      "mnuSelectStar", tr("Select a S&TAR..."), [this] { SelectProcedure(ProcedureKind::star); },
      "Ctrl+Alt+A"));
  menu->addAction(AddSwitch("mnuDisplayStar", tr("Dis&play the STAR"), &MapSwitches::mnuDisplayStar));
  menu->addAction(AddCommand("mnuDeleteStar", tr("Delete the ST&AR"),
                             [this] { editor.DeleteProcedure(ProcedureKind::star); }));
  menu->addSeparator();
  menu->addAction(AddCommand(
      "mnuDepArr", tr("Departures and arri&vals..."), [this] { ShowDepArr(); }, "Ctrl+D"));
}

// Runs body for a plan with both airports. What it cannot read is told in a box
// and goes to the common handler.
void frmMap::WithFiledPlan(std::string_view head, const std::function<void()>& body) {
  if (session.plan.RowCount() < 2)
    return messages.Show("You have to file a flight plan first!!", MessageIcon::exclamation);
  Trapped(head, [&] {
    try {
      body();
    } catch (const std::exception& error) {
      messages.Show(error.what(), MessageIcon::exclamation);
      throw;
    }
  });
}

void frmMap::SelectProcedure(ProcedureKind kind) {
  WithFiledPlan("frmMap mnuSelectSid (", [&] {
    const FlightPlan& plan = session.plan;
    const bool sid = kind == ProcedureKind::sid;
    const std::string code = plan.Row(sid ? 0 : plan.DestinationRow()).Code.Text();
    std::vector<SidStarEntry> entries = editor.Procedures(kind);
    const std::string runway = sid && plan.DepartureType != "Gate" ? plan.DepartureID : std::string();
    frmDisplaySidStar dialog(kind, code, runway, sid ? plan.SidName : plan.StarName, std::move(entries),
                             this);
    if (dialog.exec() == QDialog::Accepted && dialog.Chosen() != nullptr)
      editor.TakeProcedure(kind, *dialog.Chosen());
  });
}

void frmMap::ShowDepArr() {
  WithFiledPlan("frmMap cmdSIDSTAR (",
                [&] { frmDepArr(session, editor, messages, ProcedureKind::sid, this).exec(); });
}
