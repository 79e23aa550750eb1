#include "desk/qt/adapters/ColumnMenu.h"

#include <QMenu>

#include "desk/qt/adapters/GridWidget.h"

namespace quillon {

namespace {

constexpr long kStep = 300;

/// No letter of a heading is a key of the menu.
QString Plain(QString heading) { return heading.replace(QLatin1Char('&'), QStringLiteral("&&")); }

}  // namespace

void ColumnMenu::Fill(QMenu& menu, GridWidget& grid, int col) {
  const GridModel& model = grid.Model();
  if (col >= 0 && grid.ColWidth(col) > 0) {
    const QString heading = Plain(ColumnChoices::HeadingOf(model, col));
    menu.addAction(QStringLiteral("&Fit ") + heading, &grid, [&grid, col] { grid.FitColumn(col); });
    menu.addAction(QStringLiteral("&Wider"), &grid, [&grid, col] { grid.WidenColumn(col, kStep); });
    menu.addAction(QStringLiteral("&Narrower"), &grid, [&grid, col] { grid.WidenColumn(col, -kStep); });
    menu.addSeparator();
  }
  int shown = 0;
  for (int each = 0; each < model.Cols; ++each) shown += grid.ColWidth(each) > 0 ? 1 : 0;
  for (int each = 0; each < model.Cols; ++each) {
    const QString heading = Plain(ColumnChoices::HeadingOf(model, each));
    if (heading.isEmpty() || !ColumnChoices::MayPutAside(model, each)) continue;
    const bool isShown = grid.ColWidth(each) > 0;
    QAction* const act =
        menu.addAction(heading, &grid, [&grid, each](bool show) { grid.PutAside(each, !show); });
    act->setCheckable(true);
    act->setChecked(isShown);
    act->setEnabled(!isShown || shown > 1);
  }
  menu.addSeparator();
  QAction* const reset =
      menu.addAction(QStringLiteral("&As the Screen Has Them"), &grid, [&grid] { grid.ResetColumns(); });
  reset->setEnabled(!grid.Columns().IsEmpty());
}

}  // namespace quillon
