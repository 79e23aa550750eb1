#include "desk/qt/adapters/KeyMenu.h"

#include <QMenu>

#include "desk/qt/adapters/Acts.h"
#include "host/forms/Form.h"

namespace quillon {

namespace {

/// "Ctrl+Shift+C"; the keys of these menus are letters.
QString NameOf(const KeyEvent& key) {
  QString name;
  if (key.Shift & keys::kCtrl) name += QStringLiteral("Ctrl+");
  if (key.Shift & keys::kShift) name += QStringLiteral("Shift+");
  return name + QChar(key.KeyCode);
}

}  // namespace

void KeyMenu::Show(QWidget& widget, const QPoint& place, Control& control,
                   const std::vector<Control::KeyChoice>& choices, const std::function<void(QMenu&)>& more) {
  QMenu menu(&widget);
  for (const Control::KeyChoice& choice : choices) {
    menu.addAction(QString::fromStdString(choice.words) + QLatin1Char('\t') + NameOf(choice.key));
  }
  if (more) more(menu);
  if (menu.isEmpty()) return;
  const FormPtr form = control.OwnerForm().Self();
  const auto taken = menu.actions().indexOf(menu.exec(place));
  if (taken < 0 || taken >= static_cast<qsizetype>(choices.size())) return;
  const KeyEvent key = choices[static_cast<std::size_t>(taken)].key;
  Acts::Run([&] { form->UserKey(key.KeyCode, key.Shift, 0); });
}

}  // namespace quillon
