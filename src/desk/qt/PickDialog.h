#pragma once

#include "desk/qt/DeskDialog.h"
#include "host/CPickList.h"

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
  void SetColumnWidths(const CPickList& list);

  QTreeWidget* lines_;
};

}  // namespace quillon
