#include "desk/qt/adapters/GridAccessible.h"

#include "desk/qt/adapters/GridWidget.h"

namespace quillon {

namespace {

QAccessibleInterface* Make(const QString& /*className*/, QObject* object) {
  auto* const grid = dynamic_cast<GridWidget*>(object);
  return grid != nullptr ? new GridAccessible(*grid) : nullptr;
}

}  // namespace

GridAccessible::GridAccessible(GridWidget& grid)
    : QAccessibleWidget(&grid, QAccessible::Table), grid_(grid) {}

void GridAccessible::Offer() {
  static bool offered = false;
  if (!offered) QAccessible::installFactory(Make);
  offered = true;
}

QString GridAccessible::text(QAccessible::Text what) const {
  return what == QAccessible::Description || what == QAccessible::Value ? grid_.CursorText()
                                                                        : QAccessibleWidget::text(what);
}

}  // namespace quillon
