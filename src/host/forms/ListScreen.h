#pragma once

#include "host/controls/CGridPlus.h"
#include "host/forms/ScreenForm.h"

namespace quillon {

/// A full-size screen that is a list: the grid fills it between the titles and the bar, Enter and a double
/// click open the row, "/" the master of the row's account, which the strip shows.
class ListScreen : public ScreenForm {
 public:
  CGridPlus Grid;

 protected:
  ListScreen(const ScreenSpec& spec, Origin origin);

  /// Opens what the row under the cursor stands for; the row is one of the list's.
  virtual void OpenRow(int /*row*/) {}

  /// The account that the strip shows for a row; below 0 leaves the strip as it is.
  virtual long AccountOfRow(int /*row*/) const { return -1; }

  /// Gives the grid its place, from `top` down to the bar, and the lists' font.
  void PlaceGrid(long top);

  GridModel* MainGrid() override { return &Grid; }
  const CGridPlus* PrintedGrid() const override { return &Grid; }
  void ShowAccountOfRow(int row);

 private:
  void OpenCurrentRow();
};

}  // namespace quillon
