// The fuel that the plan needs: what each part of the flight burns, what is
// added to it and how many stops that takes. It stays above the map and follows
// every change of the plan and of the aircraft.
#pragma once

#include <QButtonGroup>
#include <QDialog>
#include <QLabel>
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "flightplan/fuel_plan.h"
#include "startup/session.h"
#include "windows/plan_editor.h"

class QBoxLayout;
class QGridLayout;
class FuelStrip;

class frmFuel : public QDialog {
  Q_OBJECT

 public:
  // Both outlive the window.
  frmFuel(Session& session, PlanEditor& editor, QWidget* parent = nullptr);

  // Takes over the unit of the settings.
  void ShowUnit();

  // Puts lines on paper: a printer that the pilot chooses, unless replaced. False if it failed.
  std::function<bool(const std::vector<std::string>& lines)> print;

 Q_SIGNALS:
  // Another fuel unit was chosen; it is in the settings.
  void UnitChanged();

 private:
  QLabel* AddLabel(const QString& name);
  void BuildParts(QGridLayout* grid);
  void BuildTotals(QGridLayout* grid);
  void BuildAlternate(QBoxLayout* layout);
  void BuildUnits(QBoxLayout* layout);
  void BuildFoot(QBoxLayout* layout);
  // CalculateFuel: the figures anew; where there are none the labels stay and the pilot is told why.
  void CalculateFuel();
  void ShowFigures();
  void ShowAlternate();
  void TakeUnit(int unit);
  void Print();
  std::vector<std::string> Lines() const;

  Session& session;
  PlanEditor& editor;
  FuelFigures figures;
  bool hasFigures = false;
  FuelStrip* strip;
  QLabel *lblCaption, *lblFault;
  QLabel *lblClimbFuel, *lblCruiseFuel, *lblDescentFuel, *lblApproachFuel;
  QLabel *lblTripFuel, *lblContFuel, *lblHoldFuel, *lblAltFuel;
  QLabel *lblTotVFR, *lblVFRStop, *lblTotIFR, *lblIFRStop;
  QLabel *lblAltAirport, *lblAltAirDistance, *lblAltAirCourse;
  std::array<QLabel*, 2> altOnly{};  // what stands beside lblAltFuel
  QButtonGroup* optFueltype;
};
