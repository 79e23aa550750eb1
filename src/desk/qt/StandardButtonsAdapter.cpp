#include "desk/qt/StandardButtonsAdapter.h"

#include <QToolButton>

#include "desk/qt/Acts.h"
#include "desk/qt/Icons.h"

namespace quillon {

StandardButtonsAdapter::StandardButtonsAdapter(CStdButtons& model, QWidget* parent)
    : Adapter(model, new QWidget(parent)), exit_(new QToolButton(&Widget())) {
  exit_->setIcon(Icons::Of(QStringLiteral("close")));
  exit_->setFocusPolicy(Qt::NoFocus);
  exit_->setAutoRaise(true);
  exit_->setToolTip(QStringLiteral("Exit (Esc)"));
  exit_->setAccessibleName(QStringLiteral("Exit"));
  connect(exit_, &QToolButton::clicked, this,
          [&model] { Acts::Run([&model] { model.UserPress(CStdButtons::kExit); }); });
}

void StandardButtonsAdapter::Draw() {
  const int side = Widget().height();
  exit_->setGeometry(Widget().width() - side, 0, side, side);
}

}  // namespace quillon
