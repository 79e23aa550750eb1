#pragma once

#include "desk/qt/dialogs/DeskDialog.h"

class QGridLayout;
class QHBoxLayout;

namespace quillon {

class Form;

/// Tells what stands under a help context, the keys of a screen, and those that hold everywhere.
class KeysDialog : public DeskDialog {
 public:
  /// Without a form only the keys that hold everywhere. A context under which nothing stands, as 0, tells the
  /// keys alone.
  KeysDialog(const Form* form, int context, QWidget* parent);

 private:
  /// Where the next lines go: a column of its own.
  void AddColumn();

  /// What stands under the context; those of its lines that have a " | " are keys, which come with the
  /// form's.
  void AddText(int context);
  void AddHeading(const QString& text);
  void AddKey(const QString& key, const QString& what, bool enabled = true);
  void AddKeysOf(const Form& form);
  void AddGridKeys(const Form& form);

  QHBoxLayout* columns_;
  QGridLayout* table_ = nullptr;
  QStringList keyLines_;
};

}  // namespace quillon
