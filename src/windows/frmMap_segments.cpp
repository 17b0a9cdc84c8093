// Route segments in the main window.
#include <QMenu>

#include "windows/frmMap.h"
#include "windows/frmSaveSegment.h"

void frmMap::AddSegmentItems(QMenu* file) {
  file->addAction(AddCommand(
      "mnuOpenSegment", tr("Open se&gment..."), [this] { ShowSegments(false); }, "Ctrl+G"));
  file->addAction(AddCommand(
      "mnuSaveSegment", tr("Save seg&ment..."), [this] { ShowSegments(true); }, "Ctrl+Alt+G"));
}

void frmMap::ShowSegments(bool save) {
  WithFiledPlan("frmMap mnuOpenSegment (", [&] {
    frmSaveSegment(save ? SegmentMode::save : SegmentMode::open, session, editor, messages, this).exec();
  });
}
