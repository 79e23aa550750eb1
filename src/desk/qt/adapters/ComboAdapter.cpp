#include "desk/qt/adapters/ComboAdapter.h"

#include <QComboBox>
#include <QEvent>
#include <QLineEdit>

#include "desk/qt/adapters/Acts.h"
#include "desk/qt/adapters/MarkedField.h"
#include "host/forms/Form.h"

namespace quillon {

ComboAdapter::ComboAdapter(ComboBox& model, QWidget* parent)
    : Adapter(model, new MarkedField<QComboBox, QStyleOptionComboBox>(model, parent)), combo_(model) {
  auto& shown = static_cast<QComboBox&>(Widget());
  Widget().installEventFilter(this);
  connect(&shown, &QComboBox::activated, this, [this](int item) {
    Acts::Run([&] { combo_.UserChoose(item); });
    Draw();
  });
}

void ComboAdapter::BeEditable() {
  auto& shown = static_cast<QComboBox&>(Widget());
  shown.setEditable(true);
  shown.setInsertPolicy(QComboBox::NoInsert);
  shown.setCompleter(nullptr);
  shown.lineEdit()->setProperty(kTypesItself, true);
  connect(shown.lineEdit(), &QLineEdit::textEdited, this,
          [this](const QString& text) { Acts::Run([&] { combo_.UserType(text.toStdString()); }); });
}

void ComboAdapter::Draw() {
  auto& shown = static_cast<QComboBox&>(Widget());
  // The toolkit says the chosen line for the name.
  shown.setAccessibleDescription(QString::fromStdString(SpokenName()));
  if (combo_.Editable && !shown.isEditable()) BeEditable();
  bool same = shown.count() == combo_.ListCount();
  for (int item = 0; same && item < combo_.ListCount(); ++item) {
    same = shown.itemText(item) == QString::fromStdString(combo_.List(item));
  }
  if (!same) {
    shown.clear();
    for (int item = 0; item < combo_.ListCount(); ++item) {
      shown.addItem(QString::fromStdString(combo_.List(item)));
    }
  }
  shown.setCurrentIndex(combo_.ListIndex());
  const QString text = QString::fromStdString(combo_.Text());
  if (shown.isEditable() && shown.currentText() != text) shown.setEditText(text);
}

bool ComboAdapter::eventFilter(QObject* watched, QEvent* event) {
  if (watched != &Widget()) return false;
  if (event->type() == QEvent::Wheel) return true;
  if (event->type() != QEvent::MouseButtonPress) return false;
  // The list opens only when the field that has the focus lets it go.
  Acts::Run([this] { combo_.OwnerForm().UserFocus(combo_); });
  return !combo_.HasFocus();
}

}  // namespace quillon
