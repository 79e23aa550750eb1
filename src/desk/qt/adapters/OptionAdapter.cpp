#include "desk/qt/adapters/OptionAdapter.h"

#include <QRadioButton>

#include "desk/qt/adapters/MarkedField.h"

namespace quillon {

OptionAdapter::OptionAdapter(OptionButton& model, QWidget* parent)
    : Adapter(model, new MarkedField<QRadioButton, QStyleOptionButton>(model, parent)), option_(model) {
  static_cast<QRadioButton&>(Widget()).setAutoExclusive(false);  // the models clear one another
  TakeClicks();
}

void OptionAdapter::Draw() {
  auto& shown = static_cast<QRadioButton&>(Widget());
  shown.setText(QString::fromStdString(option_.Caption).replace(QLatin1Char('&'), QLatin1String("&&")));
  shown.setChecked(option_.Chosen);
}

}  // namespace quillon
