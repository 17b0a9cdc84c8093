// The status panels below the map (lblMapStatus): seven texts, each with its
// tool tip, that can be clicked. A panel is as wide as its longest usual text,
// so that nothing moves when a text changes.
#pragma once

#include <QFrame>
#include <QLabel>
#include <array>

#include "map/status_panels.h"

class StatusStrip : public QFrame {
  Q_OBJECT

 public:
  explicit StatusStrip(QWidget* parent = nullptr);

  // An empty panel without a usual text takes no room.
  void Show(StatusPanel panel, const QString& text);
  // mood: what the text's colour tells, see the style sheet; empty: nothing special.
  void SetMood(StatusPanel panel, const QString& mood);

 Q_SIGNALS:
  void Clicked(int panel, Qt::MouseButton button);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void SetWidths();

  std::array<QLabel*, statusPanelCount> lblMapStatus{};
};
