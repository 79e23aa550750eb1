#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/controls/Control.h"
#include "host/controls/GridFind.h"
#include "host/controls/GridLook.h"
#include "host/values/Amount.h"
#include "host/values/CellText.h"

namespace quillon {

/// Alignments of a column, by the numbers that the screens use.
inline constexpr int kAlignLeft = 1;
inline constexpr int kAlignCentre = 4;
inline constexpr int kAlignRight = 7;

/// Rows and columns of texts with a cursor, a selected rectangle and painted rows. The first FixedRows rows
/// are titles. Widths and heights are twips; a column of width 0 and a row of height 0 are hidden.
///
/// A grid that would pass one of the limits below, or for which memory ends, refuses with HostError and stays
/// as it was.
class GridModel : public Control {
 public:
  static constexpr int kMostRows = 4'000'000;
  static constexpr int kMostCols = 1'000;
  static constexpr std::int64_t kMostCells = 64'000'000;

  /// Twips of the line that shows the title of a grid that has one.
  static constexpr long kTitleLine = 345;
  static constexpr long kDefaultRowHeight = 285;
  static constexpr long kDefaultColumnWidth = 960;

  GridModel(Control& parent, std::string name, int index = kNoIndex, bool listed = true);

  Property<int> Rows{*this, "Rows", 2};
  Property<int> Cols{*this, "Cols", 2};
  Property<int> FixedRows{*this, "FixedRows", 1};
  Property<int> FixedCols{*this, "FixedCols"};

  /// No row that is not hidden is lower.
  Property<long> RowHeightMin{*this, "RowHeightMin"};

  /// Texts that are too long for their cell go on in the next line, as far as the row is high.
  Property<bool> WordWrap{*this, "WordWrap"};

  /// What a selection takes: 0 the cells of its rectangle, 1 whole rows, 2 whole columns.
  Property<int> SelectionMode{*this, "SelectionMode"};

  /// False holds back the repaint while a form fills the grid.
  Property<bool> Redraw{*this, "Redraw", true};
  TextProperty Title{*this, "Title"};

  /// The cursor and the corner of the selection that is opposite to it. Moving the cursor takes the selection
  /// along and raises RowColChange, and RowChange with the new row when the row is another one. Outside the
  /// grid they throw SubscriptError and stay.
  Property<int> Row{*this, "Row", 1};
  Property<int> Col{*this, "Col"};
  Property<int> RowSel{*this, "RowSel", 1};
  Property<int> ColSel{*this, "ColSel"};

  Event<> RowColChange;
  Event<int> RowChange;
  Event<> DblClick;

  /// The user takes back what he did last here (Ctrl+Z), or puts it back (Ctrl+Y, Ctrl+Shift+Z).
  Event<> Undo;
  Event<> Redo;

  /// Ctrl+F, Ctrl+G.
  GridFind Finder{*this};

  /// A click on a heading, and Ctrl+Shift+F.
  GridLook Look{*this};

  /// The selected cells, as SelectionMode widens them; rows above the first that scrolls are never taken by
  /// it.
  struct Rectangle {
    int firstRow = 0;
    int lastRow = 0;
    int firstCol = 0;
    int lastCol = 0;

    bool Contains(int row, int col) const {
      return row >= firstRow && row <= lastRow && col >= firstCol && col <= lastCol;
    }
    bool IsOneCell() const { return firstRow == lastRow && firstCol == lastCol; }
  };
  Rectangle Selection() const;

  /// What is selected as its user sees it: only what is shown, the rows in their order on the screen. A
  /// cursor in a hidden column stands for its whole row.
  std::vector<int> SelectedRows() const;
  std::vector<int> SelectedCols() const;
  bool IsSelected(int row, int col) const;

  /// More is selected than the cursor's cell.
  bool IsBlockSelected() const { return selectsAll_ || !Selection().IsOneCell(); }

  /// The selected cells as lines of texts joined by tabs, dates and figures as spreadsheets read them; with
  /// `headings` the shown titles stand above. Empty where no cell is selected.
  std::string SelectedText(bool headings) const;

  /// The amounts among the selected cells of one column; only a column of figures, aligned to the right, has
  /// amounts.
  struct Figures {
    int col = 0;
    std::int64_t count = 0;
    Amount sum;
    Amount least;
    Amount most;
  };
  std::vector<Figures> SelectedFigures() const;

  /// The same in words: "3 amounts, sum 4,500.00, 500.00 to 2,500.00"; empty below two amounts.
  std::string SelectedFiguresText() const;

  /// Throws SubscriptError outside the grid.
  std::string TextMatrix(int row, int col) const { return std::string(Cell(row, col)); }
  void SetTextMatrix(int row, int col, std::string_view text);

  /// The same without a copy; holds until the cell changes.
  std::string_view Cell(int row, int col) const;

  /// The cell takes a text that is read when somebody looks at it; copies of the row share it.
  void SetTextLater(int row, int col, const std::shared_ptr<LaterTexts>& texts, std::int64_t key);

  /// The text as far as it was read: for painting, in which nothing may be read.
  std::optional<std::string_view> KnownCell(int row, int col) const;

  /// Reads what is to be read later of the shown cells of these rows. Throws what the reading throws.
  void ReadCells(int firstRow, int lastRow) const;

  /// While Redraw holds back, shows the rows that are filled so far; what a window has in sight of them is
  /// read first.
  void ShowSoFar();
  bool IsShownSoFar() const { return Redraw() || shownSoFar_; }

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

  /// Visible, and not put aside by the user of the window.
  bool IsColShown(int col) const;

  /// Empties the cells below the titles and takes the paint off.
  virtual void Clear();

  /// A new row with these cells, before the row of that number or, without one, below the last row.
  void AddItem(std::string_view tabbedText, int row = kNoIndex);
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
  TextBox* TypedBox() override;
  bool TakeEscape() override;
  void LeaveFocus() override;

  /// What is typed into the box that finds is not the form's.
  void OfferKey(KeyEvent& key) override;
  void OfferChar(int& character) override;
  std::vector<KeyChoice> KeyChoices() const override;
  bool HandleKey(const KeyEvent& key) override;
  void HandleChar(int character) override;

  /// A person moves the cursor to a cell that he can see.
  virtual void UserMoveTo(int row, int col);

  /// Where a person who goes to a row comes to stand: in the cursor's column, or in the nearest one to its
  /// right, else to its left, that he can see.
  int UserCol() const;
  void UserSelect(int row, int col, int rowSel, int colSel);

  /// A person takes the far corner of the selection elsewhere.
  void UserExtendTo(int row, int col);

  /// All that is shown is selected until the cursor or the selection moves; the cursor stays.
  void UserSelectAll();
  void UserDoubleClickRow(int row);
  void UserDoubleClick() override;

  /// The nearest visible row below the titles from `row` in steps of `step`; -1 when there is none.
  int VisibleRowFrom(int row, int step) const;

  /// The shown row beside a row on the screen, below it (1) or above it (-1), and the first or the last one;
  /// -1 when there is none.
  int RowBeside(int row, int step) const;
  int OuterRow(int step) const;

  /// The order in which the rows are shown, whatever their own is: these rows and no others, hidden ones left
  /// out. Rows, cells, heights and events stay what they are. It holds until rows are put in or taken out, or
  /// the grid is emptied.
  void SetView(std::vector<int> rows);
  void ClearView();
  bool HasView() const { return view_.has_value(); }

  /// The rows below the titles that are shown, in the order on the screen.
  std::vector<int> ShownRows() const;
  bool IsRowShown(int row) const { return IsRowVisible(row) && (!view_ || PlaceInView(row) >= 0); }

  /// Where a cell is drawn, in twips from the grid's top left corner; no width and height for a hidden one.
  /// The cursor's cell is first brought into sight. Throws SubscriptError outside the grid.
  struct Place {
    long left = 0;
    long top = 0;
    long width = 0;
    long height = 0;
  };
  Place CellPlace(int row, int col) const;

  /// That of the cursor's cell.
  long CellLeft() const { return CellPlace(Row, Col).left; }
  long CellTop() const { return CellPlace(Row, Col).top; }
  long CellWidth() const { return CellPlace(Row, Col).width; }
  long CellHeight() const { return CellPlace(Row, Col).height; }

  /// What a window that draws the grid shows of the cells below the titles, in twips. Without a window the
  /// grid's own size tells it.
  struct Sight {
    long left = 0;
    long top = 0;
    long width = 0;  ///< 0 while no window has told
    long height = 0;
    std::vector<long> widths{};  ///< of the columns; empty where they share the width by themselves
    std::vector<bool> aside{};   ///< columns that the user put aside; empty where there is none
  };
  void TellSight(Sight sight) { sight_ = std::move(sight); }

  /// The widths of the columns when they share a width, all in twips.
  std::vector<long> SharedWidths(long width) const;

  /// A row of titles that says nothing is no line on the screen.
  bool IsTitleShown(int row) const;

  /// Only the titles and one empty row stay.
  void ReleaseHeavy() override;
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

  /// Twips of what stands under the rows.
  virtual long FooterHeight() const { return 0; }

  /// A row was put in before `row` (1) or the row was taken out (-1).
  virtual void RowsShifted(int /*row*/, int /*by*/) {}

  /// Throws Refused for a cell that a person cannot go to.
  void RequireUserCell(int row, int col) const;

 private:
  friend class GridFind;
  friend class GridLook;

  struct CellAt {
    int row;
    int col;
  };
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

  /// -1 for a row that the view leaves out.
  int PlaceInView(int row) const;
  int FirstInView(int place, int step) const;
  void PutText(int row, int col, CellText text);
  const CellText* Text(int row, int col) const;
  const ColumnData& Column(int col) const;
  ColumnData& Column(int col);
  const RowData& Data(int row) const;
  RowData& Data(int row);
  RowExtra& Extra(int row);
  void RequireRoom(std::int64_t rows, std::int64_t cols) const;
  void ResizeRows();
  void ResizeCols();
  bool MoveByKey(int keyCode, CellAt& to) const;
  bool HandleCtrlKey(const KeyEvent& key);
  void DropView();
  bool TakesWholeRows() const;
  bool IsBelow(int row, int other) const;
  int ScreenfulFrom(int row, int direction) const;
  int ColBeside(int col, int direction) const;
  long BodyTop() const;
  Sight OwnSight() const;
  void ClampCursor();
  void RequireCursor();
  void CursorMoved();

  std::vector<RowData> rows_;
  std::vector<ColumnData> columns_;
  std::optional<std::vector<int>> view_;
  std::vector<int> places_;  // of each row in the view
  mutable Sight sight_;
  bool shownSoFar_ = false;
  bool selectsAll_ = false;
  int toldRow_ = 1;
  int toldCol_ = 0;
};

}  // namespace quillon
