#pragma once

#include "desk/qt/dialogs/DeskDialog.h"
#include "host/values/Font.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;

namespace quillon {

/// Asks for a font. What nobody changes is answered as it was given: a face that the machine replaces by
/// another one, and a size that is no whole number of points.
class FontDialog : public DeskDialog {
 public:
  FontDialog(const Font& font, QWidget* parent);

  Font Chosen() const;

 private:
  QCheckBox* AddMark(const QString& caption, bool set);
  void ShowSample();

  QComboBox* name_;
  QDoubleSpinBox* size_;
  QCheckBox* bold_;
  QCheckBox* italic_;
  QCheckBox* underline_;
  QLabel* sample_;
};

}  // namespace quillon
