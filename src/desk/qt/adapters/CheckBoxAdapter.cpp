#include "desk/qt/adapters/CheckBoxAdapter.h"

#include <QCheckBox>

#include "desk/qt/adapters/MarkedField.h"

namespace quillon {

CheckBoxAdapter::CheckBoxAdapter(CheckBox& model, QWidget* parent)
    : Adapter(model, new MarkedField<QCheckBox, QStyleOptionButton>(model, parent)), box_(model) {
  TakeClicks();
}

void CheckBoxAdapter::Draw() {
  auto& shown = static_cast<QCheckBox&>(Widget());
  shown.setText(QString::fromStdString(box_.Caption).replace(QLatin1Char('&'), QLatin1String("&&")));
  shown.setChecked(box_.CheckValue != 0);
}

}  // namespace quillon
