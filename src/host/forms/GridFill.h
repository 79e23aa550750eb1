#pragma once

#include <string>

#include "host/controls/CGridPlus.h"
#include "host/controls/RedrawHold.h"

namespace quillon {

/// The filling of a grid from the books, for the length of a block. Until Done the grid shows no totals and
/// its title says that it is not complete, so that rows which were read before a failure are never taken for
/// all.
class GridFill {
 public:
  GridFill(CGridPlus& grid, const std::string& title);
  GridFill(const GridFill&) = delete;
  GridFill& operator=(const GridFill&) = delete;

  void Done();

 private:
  RedrawHold hold_;
  CGridPlus& grid_;
  std::string title_;
};

/// Whether the grid's last filling reached its end. Otherwise the user is told why it is neither printed nor
/// reckoned with.
bool RequireComplete(const CGridPlus& grid);

}  // namespace quillon
