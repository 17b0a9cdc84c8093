// The parts of the fuel side by side in one bar, each as long as its share.
#pragma once

#include <QColor>
#include <QWidget>
#include <array>

class FuelStrip : public QWidget {
 public:
  static constexpr int partCount = 7;  // climb, cruise, descent, approach; contingency, holding, alternate

  explicit FuelStrip(QWidget* parent);

  // Amounts in one unit; what is not above 0 has no place in the bar.
  void SetParts(const std::array<double, partCount>& amounts);
  static QColor ColorOf(int part);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::array<double, partCount> parts{};
};
