#pragma once

#include "desk/qt/dialogs/DeskDialog.h"
#include "host/forms/Runtime.h"

class QLineEdit;

namespace quillon {

/// Asks for one line of text.
class InputDialog : public DeskDialog {
 public:
  InputDialog(const InputRequest& request, QWidget* parent);

  std::string Text() const;

 private:
  QLineEdit* line_;
};

}  // namespace quillon
