#pragma once

#include <string_view>

#include "host/controls/GridModel.h"

namespace quillon {

/// The labels of a grid, several across, in reading order. The code of the party of the label in column c
/// stands `columns` further; a place without a code has no label.
class LabelSheet {
 public:
  LabelSheet(GridModel& grid, int columns) : grid_(grid), columns_(columns) {}

  struct Place {
    int Row = 0;
    int Col = 0;
  };

  /// 0 for a place without a label, and outside the sheet.
  long CodeAt(Place place) const;
  void Put(Place place, std::string_view text, long code);

  Place After(Place place) const;
  Place Before(Place place) const;

  /// Takes the labels of a rectangle out and closes the gaps. Rows that have become empty go; one row stays.
  void Remove(const GridModel::Rectangle& taken);

 private:
  bool Holds(Place place) const;

  GridModel& grid_;
  int columns_;
};

}  // namespace quillon
