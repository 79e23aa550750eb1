#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/controls/Control.h"
#include "host/values/CellText.h"

namespace quillon {

/// Alignments of a column, by the numbers that the screens use.
inline constexpr int kAlignLeft = 1;
inline constexpr int kAlignCentre = 4;
inline constexpr int kAlignRight = 7;

/// Rows and columns of texts with a cursor, a selected rectangle and painted rows. The first FixedRows rows
/// are titles. Widths and heights are twips; a column of width 0 and a row of height 0 are hidden.
class GridModel : public Control {
 public:
  static constexpr long kDefaultRowHeight = 285;
  static constexpr long kDefaultColumnWidth = 960;

  GridModel(Control& parent, std::string name, int index = kNoIndex, bool listed = true);

  Property<int> Rows{*this, "Rows", 2};
  Property<int> Cols{*this, "Cols", 2};
  Property<int> FixedRows{*this, "FixedRows", 1};
  Property<int> FixedCols{*this, "FixedCols"};
  Property<long> RowHeightMin{*this, "RowHeightMin"};

  /// False holds back the repaint while a form fills the grid.
  Property<bool> Redraw{*this, "Redraw", true};
  TextProperty Title{*this, "Title"};

  /// The cursor. Moving it raises RowColChange, and RowChange with the new row when the row is another one.
  Property<int> Row{*this, "Row", 1};
  Property<int> Col{*this, "Col"};
  Property<int> RowSel{*this, "RowSel", 1};
  Property<int> ColSel{*this, "ColSel"};

  Event<> RowColChange;
  Event<int> RowChange;
  Event<> DblClick;

  /// Throws SubscriptError outside the grid.
  std::string TextMatrix(int row, int col) const { return std::string(Cell(row, col)); }
  void SetTextMatrix(int row, int col, std::string_view text);

  /// The same without a copy; holds until the cell changes.
  std::string_view Cell(int row, int col) const;

  long ColWidth(int col) const { return Column(col).width; }
  void SetColWidth(int col, long width);
  int ColAlignment(int col) const { return Column(col).alignment; }
  void SetColAlignment(int col, int alignment);
  int HeadingAlignment(int col) const;
  void SetHeadingAlignment(int col, int alignment);
  long RowHeight(int row) const;
  void SetRowHeight(int row, long height);
  void HideAllColumns();

  bool IsRowVisible(int row) const { return RowHeight(row) > 0; }
  bool IsColVisible(int col) const { return ColWidth(col) > 0; }

  /// Empties the cells below the titles and takes the paint off.
  virtual void Clear();
  void AddItem(std::string_view tabbedText);
  void RemoveItem(int row);

  /// Columns, widths, alignments, titles, fonts and row heights of another grid.
  void CopyLayout(const GridModel& other);

  /// The cells of a row of another grid, shared and not copied; the columns that the other lacks stay.
  void CopyRow(int row, const GridModel& other, int otherRow);

  struct Paint {
    int firstCol = 0;
    int lastCol = 0;
    long backColor = kDefaultColor;
    long foreColor = kDefaultColor;
  };

  /// Paints columns of a row; a colour of -1 gives the grid's own back.
  void PaintRow(int row, const Paint& paint);
  const std::vector<Paint>& Paints(int row) const;
  bool CellFontUnderline(int row, int col) const;
  void SetCellFontUnderline(int row, int col, bool underline);

  bool CanTakeFocus() const override { return true; }
  bool KeepsEnter() const override { return true; }
  bool HandleKey(const KeyEvent& key) override;

  /// A person moves the cursor to a cell that he can see.
  virtual void UserMoveTo(int row, int col);
  void UserSelect(int row, int col, int rowSel, int colSel);
  void UserDoubleClickRow(int row);
  void UserDoubleClick() override;

  /// The nearest visible row from `row` in steps of `step`; 0 when there is none.
  int VisibleRowFrom(int row, int step) const;

  State Describe() const override;

  /// The cells of rows `first` to `last` and the given columns; all columns when the list is empty.
  Array CellTexts(int first, int last, const std::vector<int>& cols) const;

 protected:
  void PropertyChanged(const PropertyBase& property) override;

  /// Tells the listeners unless Redraw holds back.
  void Touched();
  void RequireRow(int row) const;
  void RequireCol(int col) const;

  /// The cursor moves by a key of the grid itself.
  void KeyMoveTo(int row, int col);

  /// Throws Refused for a cell that a person cannot go to.
  void RequireUserCell(int row, int col) const;

 private:
  struct ColumnData {
    long width = kDefaultColumnWidth;
    int alignment = kAlignLeft;
    int headingAlignment = -1;
  };
  struct RowExtra {
    std::vector<Paint> paints;
    std::vector<bool> underlined;
  };
  struct RowData {
    std::vector<CellText> cells;  // shorter than the columns while the rest is empty
    long height = -1;
    std::unique_ptr<RowExtra> extra;
  };

  const ColumnData& Column(int col) const;
  ColumnData& Column(int col);
  const RowData& Data(int row) const;
  RowData& Data(int row);
  RowExtra& Extra(int row);
  void ClampCursor();
  void RequireCursor();
  void CursorMoved();

  std::vector<RowData> rows_;
  std::vector<ColumnData> columns_;
  int toldRow_ = 1;
  int toldCol_ = 0;
};

}  // namespace quillon
