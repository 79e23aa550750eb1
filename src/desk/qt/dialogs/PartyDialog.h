#pragma once

#include "desk/qt/dialogs/DeskDialog.h"
#include "host/forms/Runtime.h"

class QComboBox;
class QLineEdit;

namespace quillon {

/// Chooses parties by the beginning of their names, their station and group, and how they are sorted.
class PartyDialog : public DeskDialog {
 public:
  PartyDialog(const PartiesRequest& request, QWidget* parent);

  /// The request with its answer; conditions in terms of the asked alias of the masters.
  PartiesRequest Answer() const;

 private:
  QComboBox* AddChoice(const QString& caption, const QStringList& items);

  PartiesRequest request_;
  QLineEdit* name_;
  QComboBox* station_;
  QComboBox* group_;
  QComboBox* order_;
};

}  // namespace quillon
