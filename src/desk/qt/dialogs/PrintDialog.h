#pragma once

#include "desk/qt/dialogs/DeskDialog.h"
#include "host/services/PrintSetup.h"

class QComboBox;
class QSpinBox;

namespace quillon {

/// Asks where a job goes, which pages and how many copies.
class PrintDialog : public DeskDialog {
 public:
  PrintDialog(const PrintSetup& setup, const std::vector<std::string>& printers, QWidget* parent);

  void TakeInto(PrintSetup& setup) const;

 protected:
  bool Check() override;

 private:
  QSpinBox* AddNumber(const QString& caption, int least, int most, int value);

  QComboBox* printer_;
  QSpinBox* from_;
  QSpinBox* to_;
  QSpinBox* copies_;
};

}  // namespace quillon
