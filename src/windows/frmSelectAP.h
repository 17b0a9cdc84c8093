// The dialog in which the pilot chooses the airports of the plan: departure
// with its start position, destination, and an alternate if he wants one. What
// he types into a field is searched for at once; the list below shows what was
// found for the field that he is in.
#pragma once

#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <array>
#include <optional>

#include "flightplan/airport_choice.h"
#include "navdata/airport_search.h"
#include "windows/airport_list.h"
#include "windows/start_position_box.h"

class frmSelectAP : public QDialog {
  Q_OBJECT

 public:
  // Opens with a choice, such as the plan's own (ChoiceOf). Plan and database
  // outlive the dialog.
  frmSelectAP(const FlightPlan& plan, const NavDatabase& database, const AirportChoice& opening,
              QWidget* parent = nullptr);

  // Complete() once the pilot can accept it.
  AirportChoice Choice() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  enum Role { departure, destination, alternate, roles };
  struct Field {
    QLineEdit* text = nullptr;
    QLabel* name = nullptr;
    QLabel* details = nullptr;
    std::int32_t row = -1;  // of the airport table
    std::size_t matches = 0;
  };

  void BuildFields();
  void AddField(QGridLayout* grid, Role role, const QString& caption, const QString& textName,
                const QString& labelName);
  QPushButton* AddSideButton(QGridLayout* grid, Role role, const QString& name, const QString& text);
  void BuildList();
  void BuildButtons();
  Field& At(Role role) { return fields[static_cast<std::size_t>(role)]; }
  const Field& At(Role role) const { return fields[static_cast<std::size_t>(role)]; }
  const AirportRec* Airport(Role role) const;
  QString CodeOf(std::int32_t row) const;  // empty for -1
  Role RoleOf(const QObject* text) const;

  void Typed(Role role);
  void Search(Role role);
  // Chooses a row of the airport table for a field; -1 empties it.
  void Choose(Role role, std::int32_t row);
  void Picked(std::int32_t row);
  // Takes what the list has selected if the field has text but no airport yet.
  void TakeBest(Role role);
  bool FieldKey(Role role, const class QKeyEvent& key);
  void EnterField(Role role);
  void Leave(Role role);
  void Swap();
  void ShowAll();
  void ShowField(Role role);
  QString DetailsOf(Role role) const;
  void ShowRoute();
  void ShowList();

  const FlightPlan& plan;
  const NavDatabase& database;
  std::optional<AirportSearch> search;  // made when it is first needed
  std::array<Field, roles> fields;
  Role active = departure;
  StartPositionBox* lstDep;
  AirportList* lstAirports;
  QLabel* lblList;
  QLabel* lblDistance;
  QLabel* lblChange;
  QPushButton* cmdSwap;
  QPushButton* cmdNoAlternate;
  QPushButton* cmdOK;
};
