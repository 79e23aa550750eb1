#pragma once

#include "desk/qt/dialogs/DeskDialog.h"
#include "host/forms/Runtime.h"

class QGridLayout;
class QLineEdit;

namespace quillon {

/// Asks for a date, or for two. A date typed short is completed when its field is left; what is no date keeps
/// the user in the field.
class DateDialog : public DeskDialog {
 public:
  DateDialog(const DateRequest& request, QWidget* parent);

  Date First() const;
  Date Second() const;

 protected:
  bool Check() override;

 private:
  QLineEdit* AddField(QGridLayout& rows, const QString& caption, const Date& date);
  bool Complete(QLineEdit& field);

  QLineEdit* first_;
  QLineEdit* second_ = nullptr;
};

}  // namespace quillon
