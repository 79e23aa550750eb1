#pragma once

#include "host/controls/EditableGrid.h"

namespace quillon {

/// An editable grid; FlexGrid is the inner grid under its own name.
class CEditGrid : public EditableGrid {
 public:
  using EditableGrid::EditableGrid;

  const char* Kind() const override { return "CEditGrid"; }

  GridModel& FlexGrid() { return *this; }
  Variant Get(const std::string& member) override;
  int RowCount() const { return Rows; }
  void SetRowCount(int rows) { Rows = rows; }
};

}  // namespace quillon
