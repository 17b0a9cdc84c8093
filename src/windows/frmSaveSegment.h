// Route segments: rows of the plan saved as a departure, an arrival or an
// enroute stretch, and such a segment put into the plan. One window in two
// modes; the Delete key in its lists removes what is selected.
#pragma once

#include <QButtonGroup>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <filesystem>
#include <vector>

#include "flightplan/segment_folder.h"
#include "platform/message_box.h"
#include "startup/session.h"
#include "windows/plan_editor.h"
#include "windows/segment_map.h"

enum class SegmentMode { save, open };

class frmSaveSegment : public QDialog {
  Q_OBJECT

 public:
  // session must have a plan with both airports; all outlive the window.
  frmSaveSegment(SegmentMode mode, Session& session, PlanEditor& editor, MessageBox& messages,
                 QWidget* parent = nullptr);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildHead(class QVBoxLayout* layout);
  void BuildWaypoints(class QHBoxLayout* columns);
  void BuildLists(class QHBoxLayout* columns);
  void BuildMap(class QHBoxLayout* columns);
  void BuildFields(class QVBoxLayout* layout);
  void BuildFoot(class QVBoxLayout* layout);
  QListWidget* AddList(class QVBoxLayout* layout, const QString& caption, const QString& name);

  void Trapped(std::string_view head, const std::function<void()>& body);
  SegmentType Type() const;
  std::int32_t AirportRow() const;  // of the chosen type; -1: enroute has none
  std::string AirportCode() const;  // UTF-8
  void ShowType();
  void ShowRunways();
  void ListFiles();
  void ShowFile();
  void ShowPreview();
  void Say(const QString& text, bool fault);
  // Null while none is selected.
  const StoredSegment* ChosenSegment() const;
  std::vector<PlanWaypoint> SelectedRows() const;
  int InsertionRow() const;  // -1: none is chosen

  void Take();
  void Save();
  void Insert();
  void DeleteFile();
  void DeleteOne();
  // Tells the pilot that nothing became of it.
  void Refuse(const std::string& what, const std::string& reason);

  SegmentMode mode;
  Session& session;
  PlanEditor& editor;
  MessageBox& messages;
  std::vector<std::filesystem::path> files;  // as listed
  std::string text;                          // of the selected file
  SegmentReading reading;                    // likewise

  QButtonGroup* optSegmentType;
  QLabel* lblAirport;
  QLabel* lblMessage;
  QListWidget* lstFpWaypoints;
  QListWidget* lstFiles;
  QListWidget* lstSegments;
  SegmentMap* pctSid;
  QWidget* fields;  // of what is saved
  QLabel* lblRunway;
  QComboBox* cmbRunway;
  QLineEdit* txtSegments;
  QLabel* lblSegFilename;
  QLineEdit* txtSegFilename;
};
