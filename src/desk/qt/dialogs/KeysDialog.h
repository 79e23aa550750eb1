#pragma once

#include "desk/qt/dialogs/DeskDialog.h"

class QGridLayout;

namespace quillon {

class Form;

/// Tells the keys of a screen, and those that hold everywhere.
class KeysDialog : public DeskDialog {
 public:
  /// Without a form only the keys that hold everywhere.
  KeysDialog(const Form* form, QWidget* parent);

 private:
  void AddHeading(const QString& text);
  void AddKey(const QString& key, const QString& what, bool enabled = true);
  void AddKeysOf(const Form& form);

  QGridLayout* table_;
};

}  // namespace quillon
