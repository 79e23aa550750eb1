#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/controls/EditableGrid.h"

namespace quillon {

class CGridPlus;

/// The band of totals under a grid, in the grid's columns; it does not scroll with the rows.
class GridFooter {
 public:
  explicit GridFooter(CGridPlus& grid) : grid_(grid) {}

  static constexpr int kMostRows = 100;

  int Rows() const { return static_cast<int>(rows_.size()); }

  /// Throws SubscriptError below 0 and above kMostRows.
  void SetRows(int rows);

  /// Twips of the whole band; 0 is one line for each row.
  long Height() const { return height_; }
  void SetHeight(long height);

  std::string TextMatrix(int row, int col) const;
  void SetTextMatrix(int row, int col, std::string_view text);

  /// Empties the texts and takes the paint off; the rows stay.
  void Clear();
  void PaintRow(int row, long backColor);
  long BackColor(int row) const;

 private:
  struct RowData {
    std::vector<std::string> cells;
    long backColor = Control::kDefaultColor;
  };

  const RowData& At(int row) const;

  CGridPlus& grid_;
  std::vector<RowData> rows_;
  long height_ = 0;
};

/// A read-mostly grid with totals and cell editing.
class CGridPlus : public EditableGrid {
 public:
  using EditableGrid::EditableGrid;

  const char* Kind() const override { return "CGridPlus"; }

  GridFooter Footer{*this};

  /// False while, and after, a filling that did not reach its end.
  Property<bool> Complete{*this, "Complete", true};

  State Describe() const override;

  /// Twips of one line of the footer.
  long FooterLine() const;

 protected:
  long FooterHeight() const override { return Footer.Rows() * FooterLine(); }

 private:
  friend class GridFooter;
};

}  // namespace quillon
