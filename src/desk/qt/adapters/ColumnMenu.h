#pragma once

class QMenu;

namespace quillon {

class GridWidget;

/// The lines of a menu that fit a column of a grid, make it wider or narrower, put columns aside and bring
/// them back, and give them all back as the screen states them.
class ColumnMenu {
 public:
  /// `col` is the column that the menu is asked for on; -1 for none.
  static void Fill(QMenu& menu, GridWidget& grid, int col);
};

}  // namespace quillon
