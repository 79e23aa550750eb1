#pragma once

#include "desk/qt/dialogs/DeskDialog.h"

class QListWidget;

namespace quillon {

/// A short list to choose one line of.
class ChoiceDialog : public DeskDialog {
 public:
  ChoiceDialog(const QString& title, const QStringList& lines, int chosen, QWidget* parent);

  /// The line chosen, counted from 0.
  int Line() const;

 private:
  QListWidget* list_;
};

}  // namespace quillon
