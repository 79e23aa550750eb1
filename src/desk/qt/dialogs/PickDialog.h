#pragma once

#include "desk/qt/dialogs/DeskDialog.h"
#include "host/controls/PickOrder.h"
#include "host/forms/CPickList.h"

class QLineEdit;
class QTreeWidget;

namespace quillon {

/// A list of lines to pick one from: Enter, F7 or a double click. What is typed narrows it.
class PickDialog : public DeskDialog {
 public:
  PickDialog(const CPickList& list, QWidget* parent);

  /// The line picked, counted from 0.
  std::size_t Item() const;

 protected:
  bool Check() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void PlaceColumns(const CPickList& list);
  void ShowLines();

  const CPickList& list_;
  PickOrder names_;
  QLineEdit* find_;
  QTreeWidget* lines_;
};

}  // namespace quillon
