#pragma once

#include "desk/qt/dialogs/DeskDialog.h"
#include "host/forms/CPickList.h"

class QTreeWidget;

namespace quillon {

/// A list of lines to pick one from: Enter, F7 or a double click.
class PickDialog : public DeskDialog {
 public:
  PickDialog(const CPickList& list, QWidget* parent);

  /// The line picked, counted from 0.
  std::size_t Item() const;

 protected:
  bool Check() override;

 private:
  void PlaceColumns(const CPickList& list);

  QTreeWidget* lines_;
};

}  // namespace quillon
