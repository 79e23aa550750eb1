#pragma once

#include <QAccessibleWidget>

namespace quillon {

class GridWidget;

/// What a screen reader hears of a grid: that it is a table, its title, and the cell of the cursor.
class GridAccessible : public QAccessibleWidget {
 public:
  explicit GridAccessible(GridWidget& grid);

  /// Once for the program; more calls do nothing.
  static void Offer();

  QString text(QAccessible::Text what) const override;

 private:
  GridWidget& grid_;
};

}  // namespace quillon
