// MessageBox on the screen, and the pointer's shape.
#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/message_box.h"
#include "platform/pointer_shape.h"

class QtMessageBox : public MessageBox {
 public:
  // The window that boxes stand over from now on; may be null.
  void SetParent(QWidget* window) { parent = window; }

  void Show(std::string_view text, MessageIcon icon) override;
  bool AskYesNo(std::string_view text, MessageIcon icon) override;
  std::optional<bool> AskYesNoCancel(std::string_view text, MessageIcon icon) override;

 private:
  QPointer<QWidget> parent;
};

class QtPointerShape : public PointerShape {
 public:
  void SetHourglass(bool on) override;
};
