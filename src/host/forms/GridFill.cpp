#include "host/forms/GridFill.h"

#include "host/services/IStd.h"

namespace quillon {

GridFill::GridFill(CGridPlus& grid, const std::string& title) : hold_(grid), grid_(grid), title_(title) {
  grid_.Complete = false;
  grid_.Footer.Clear();
  grid_.Title = title_ + " (not complete)";
}

void GridFill::Done() {
  grid_.Title = title_;
  grid_.Complete = true;
}

bool RequireComplete(const CGridPlus& grid) {
  if (grid.Complete) return true;
  gStd->MsgBox(grid.Title() +
                   "\nNot all of its entries could be read, so it is neither printed nor reckoned with. "
                   "Open it again.",
               "", "W");
  return false;
}

}  // namespace quillon
