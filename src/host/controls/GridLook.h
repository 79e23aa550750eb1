#pragma once

#include <string>

#include "host/controls/FindPattern.h"
#include "host/controls/TextBox.h"

namespace quillon {

class GridModel;

/// How a person looks at the rows of a grid whose screen allows it: sorted by a column, or only those that
/// have a text. The grid's own rows stay what they are, and so does what is printed; rows that come or go end
/// it.
class GridLook {
 public:
  explicit GridLook(GridModel& grid);

  /// Set by a screen where the order of the rows has no meaning of its own, nothing is edited and no totals
  /// stand below.
  bool IsAllowed = false;

  /// The quick filter.
  TextBox Box;

  /// By a column: upwards, the next time downwards, then the grid's own order again. Throws Refused where the
  /// screen does not allow it, and for a hidden column.
  void UserSort(int col);

  /// -1 when the rows stand in the grid's own order.
  int SortedBy() const { return col_; }
  bool IsDownwards() const { return downwards_; }

  /// The filter's box is shown from its opening on until it is closed, which shows all rows again.
  bool IsFilterOpen() const { return open_; }

  /// Whether what is typed goes into it.
  bool IsTyped() const { return typed_; }
  void OpenFilter();
  void CloseFilter();
  bool HandleKey(const KeyEvent& key);

  /// The cursor goes elsewhere: the filter holds and is typed into no more.
  void EndTyping() { typed_ = false; }

  /// The rows changed: nothing holds any more.
  void Forget();

 private:
  void Show();

  GridModel& grid_;
  FindPattern pattern_;
  int col_ = -1;
  bool downwards_ = false;
  bool open_ = false;
  bool typed_ = false;
};

}  // namespace quillon
