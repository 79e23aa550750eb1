#pragma once

#include "desk/qt/dialogs/DeskDialog.h"

class QListWidget;

namespace quillon {

/// Opens a firm: the recent ones, or a folder. One that does not open is told why, and the dialog stays.
class OpenFirmDialog : public DeskDialog {
 public:
  /// `open` answers what is wrong with the firm of a folder; empty when it is open.
  OpenFirmDialog(const std::function<QString(const QString& folder)>& open, QWidget* parent);

 protected:
  bool Check() override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Browse();
  bool Try(const QString& folder);

  std::function<QString(const QString&)> open_;
  QListWidget* list_;
};

}  // namespace quillon
