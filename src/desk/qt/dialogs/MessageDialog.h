#pragma once

#include "desk/qt/dialogs/DeskDialog.h"
#include "host/forms/Runtime.h"

namespace quillon {

/// A message box; what only an expert reads stands behind the button "Details". Esc and the close box take
/// the last button; a button's first letter presses it.
class MessageDialog : public DeskDialog {
 public:
  MessageDialog(const MessageRequest& request, QWidget* parent);

  /// The number of the button taken, counted from 1.
  int Ask();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void AddDetails(const QString& details);

  QList<PushButton*> buttons_;
  int taken_;
};

}  // namespace quillon
