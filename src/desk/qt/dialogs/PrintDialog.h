#pragma once

#include "desk/qt/dialogs/DeskDialog.h"
#include "host/services/PrintSetup.h"

class QCheckBox;
class QComboBox;
class QSpinBox;

namespace quillon {

/// Asks where a job goes and, as far as its caller can use them, which pages, how many copies and whether in
/// colour.
class PrintDialog : public DeskDialog {
 public:
  PrintDialog(const PrintSetup& setup, const std::vector<PrinterDevice>& printers, QWidget* parent);

  void TakeInto(PrintSetup& setup) const;

 protected:
  bool Check() override;

 private:
  QComboBox* AddChoice(const QString& caption);
  QSpinBox* AddNumber(const QString& caption, int most, int value);

  QComboBox* printer_;
  QSpinBox* from_ = nullptr;
  QSpinBox* to_ = nullptr;
  QComboBox* sides_ = nullptr;
  QSpinBox* copies_ = nullptr;
  QComboBox* color_ = nullptr;
  QCheckBox* sight_ = nullptr;
};

}  // namespace quillon
