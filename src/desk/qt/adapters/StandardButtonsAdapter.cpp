#include "desk/qt/adapters/StandardButtonsAdapter.h"

#include <QToolButton>

#include "desk/qt/adapters/Acts.h"
#include "desk/qt/adapters/Icons.h"

namespace quillon {

StandardButtonsAdapter::StandardButtonsAdapter(CStdButtons& model, QWidget* parent)
    : Adapter(model, new QWidget(parent)),
      strip_(model),
      configure_(
          AddButton(CStdButtons::kConfigure, QStringLiteral("config"), QStringLiteral("Configuration"))),
      exit_(AddButton(CStdButtons::kExit, QStringLiteral("close"), QStringLiteral("Exit"))) {
  exit_->setToolTip(QStringLiteral("Exit (Esc)"));
}

QToolButton* StandardButtonsAdapter::AddButton(int index, const QString& icon, const QString& name) {
  auto* const button = new QToolButton(&Widget());
  button->setIcon(Icons::Of(icon));
  button->setFocusPolicy(Qt::NoFocus);
  button->setAutoRaise(true);
  button->setToolTip(name);
  button->setAccessibleName(name);
  connect(button, &QToolButton::clicked, this,
          [this, index] { Acts::Run([this, index] { strip_.UserPress(index); }); });
  return button;
}

void StandardButtonsAdapter::Draw() {
  const int side = Widget().height();
  exit_->setGeometry(Widget().width() - side, 0, side, side);
  configure_->setGeometry(Widget().width() - 2 * side, 0, side, side);
  configure_->setVisible(strip_.HasConfiguration);
}

}  // namespace quillon
