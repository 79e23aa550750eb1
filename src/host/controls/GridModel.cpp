#include "host/controls/GridModel.h"

#include <algorithm>
#include <new>

#include "host/values/Text.h"

namespace quillon {

namespace {

const std::vector<GridModel::Paint> kNoPaint;

}  // namespace

GridModel::GridModel(Control& parent, std::string name, int index, bool listed)
    : Control(parent, std::move(name), index, listed), rows_(2), columns_(2) {}

void GridModel::RequireRow(int row) const {
  if (row < 0 || row >= Rows) throw SubscriptError(Name() + " row " + std::to_string(row));
}

void GridModel::RequireCol(int col) const {
  if (col < 0 || col >= Cols) throw SubscriptError(Name() + " column " + std::to_string(col));
}

const GridModel::ColumnData& GridModel::Column(int col) const {
  RequireCol(col);
  return columns_[static_cast<std::size_t>(col)];
}

GridModel::ColumnData& GridModel::Column(int col) {
  RequireCol(col);
  return columns_[static_cast<std::size_t>(col)];
}

const GridModel::RowData& GridModel::Data(int row) const {
  RequireRow(row);
  return rows_[static_cast<std::size_t>(row)];
}

GridModel::RowData& GridModel::Data(int row) {
  RequireRow(row);
  return rows_[static_cast<std::size_t>(row)];
}

GridModel::RowExtra& GridModel::Extra(int row) {
  RowData& data = Data(row);
  if (!data.extra) data.extra = std::make_unique<RowExtra>();
  return *data.extra;
}

const CellText* GridModel::Text(int row, int col) const {
  const RowData& data = Data(row);
  RequireCol(col);
  const auto at = static_cast<std::size_t>(col);
  return at < data.cells.size() ? &data.cells[at] : nullptr;
}

std::string_view GridModel::Cell(int row, int col) const {
  const CellText* const text = Text(row, col);
  return text != nullptr ? text->View() : std::string_view();
}

std::optional<std::string_view> GridModel::KnownCell(int row, int col) const {
  const CellText* const text = Text(row, col);
  return text != nullptr ? text->Known() : std::string_view();
}

void GridModel::ReadCells(int firstRow, int lastRow) const {
  for (int row = std::max(firstRow, 0); row <= std::min(lastRow, Rows - 1); ++row) {
    for (int col = 0; col < Cols; ++col) {
      if (IsColVisible(col) && !KnownCell(row, col)) Cell(row, col);
    }
  }
}

void GridModel::ShowSoFar() {
  if (sight_.height > 0) {
    // A grid that is filled stands on its first rows.
    int last = FixedRows;
    for (long height = 0; last < Rows && height < sight_.height; ++last) height += RowHeight(last);
    ReadCells(FixedRows, last);
  }
  shownSoFar_ = true;
  ContentChanged();
}

void GridModel::SetTextMatrix(int row, int col, std::string_view text) { PutText(row, col, CellText(text)); }

void GridModel::SetTextLater(int row, int col, const std::shared_ptr<LaterTexts>& texts, std::int64_t key) {
  PutText(row, col, CellText(texts, key));
}

void GridModel::PutText(int row, int col, CellText text) {
  RowData& data = Data(row);
  RequireCol(col);
  const auto at = static_cast<std::size_t>(col);
  if (at >= data.cells.size()) {
    if (text.IsEmpty()) return;
    if (data.cells.empty()) data.cells.reserve(columns_.size());
    data.cells.resize(at + 1);
  }
  data.cells[at] = std::move(text);
  Touched();
}

void GridModel::SetColWidth(int col, long width) {
  Column(col).width = width;
  Touched();
}

void GridModel::SetColAlignment(int col, int alignment) {
  Column(col).alignment = alignment;
  Touched();
}

int GridModel::HeadingAlignment(int col) const {
  const ColumnData& column = Column(col);
  return column.headingAlignment >= 0 ? column.headingAlignment : column.alignment;
}

void GridModel::SetHeadingAlignment(int col, int alignment) {
  Column(col).headingAlignment = alignment;
  Touched();
}

long GridModel::RowHeight(int row) const {
  const long own = Data(row).height;
  if (own == 0) return 0;
  return std::max(own > 0 ? own : kDefaultRowHeight, RowHeightMin());
}

void GridModel::SetRowHeight(int row, long height) {
  Data(row).height = height;
  Touched();
}

void GridModel::HideAllColumns() {
  for (ColumnData& column : columns_) column.width = 0;
  Touched();
}

void GridModel::Clear() {
  ClearView();
  for (std::size_t row = static_cast<std::size_t>(FixedRows()); row < rows_.size(); ++row) {
    rows_[row].cells.clear();
    rows_[row].extra.reset();
  }
  Touched();
}

void GridModel::ReleaseHeavy() {
  Clear();
  Rows = std::min(Rows(), FixedRows + 1);
  rows_.shrink_to_fit();
  Control::ReleaseHeavy();
}

void GridModel::AddItem(std::string_view tabbedText, int row) {
  if (row == kNoIndex) row = Rows;
  if (row < 0 || row > Rows) throw SubscriptError(Name() + " row " + std::to_string(row));
  // The row is made below the last one, which may be refused, and then put in its place.
  Rows = Rows + 1;
  std::rotate(rows_.begin() + row, rows_.end() - 1, rows_.end());
  ClearView();
  RowsShifted(row, 1);
  const std::vector<std::string> parts = text::Split(tabbedText, "\t");
  for (int col = 0; col < std::min(Cols(), static_cast<int>(parts.size())); ++col) {
    SetTextMatrix(row, col, parts[static_cast<std::size_t>(col)]);
  }
  Touched();
}

void GridModel::RemoveItem(int row) {
  RequireRow(row);
  rows_.erase(rows_.begin() + row);
  Rows.PutSilently(Rows - 1);
  ClearView();
  ClampCursor();
  RowsShifted(row, -1);
  Touched();
}

void GridModel::CopyLayout(const GridModel& other) {
  Cols = other.Cols();
  FixedRows = other.FixedRows();
  Font = other.Font();
  RowHeightMin = other.RowHeightMin();
  columns_ = other.columns_;
  const int titles = std::min({FixedRows(), Rows(), other.Rows()});
  for (int row = 0; row < titles; ++row) {
    CopyRow(row, other, row);
    Data(row).height = other.Data(row).height;
  }
  Touched();
}

void GridModel::CopyRow(int row, const GridModel& other, int otherRow) {
  RowData& data = Data(row);
  data.cells = other.Data(otherRow).cells;
  if (data.cells.size() > columns_.size()) data.cells.resize(columns_.size());
  Touched();
}

void GridModel::PaintRow(int row, const Paint& paint) {
  std::vector<Paint>& paints = Extra(row).paints;
  std::erase_if(paints, [&](const Paint& old) {
    return old.firstCol >= paint.firstCol && old.lastCol <= paint.lastCol;
  });
  if (paint.backColor != kDefaultColor || paint.foreColor != kDefaultColor) paints.push_back(paint);
  Touched();
}

const std::vector<GridModel::Paint>& GridModel::Paints(int row) const {
  const RowData& data = Data(row);
  return data.extra ? data.extra->paints : kNoPaint;
}

bool GridModel::CellFontUnderline(int row, int col) const {
  const RowData& data = Data(row);
  const auto at = static_cast<std::size_t>(col);
  return data.extra && at < data.extra->underlined.size() && data.extra->underlined[at];
}

void GridModel::SetCellFontUnderline(int row, int col, bool underline) {
  RequireCol(col);
  RowExtra& extra = Extra(row);
  extra.underlined.resize(columns_.size());
  extra.underlined[static_cast<std::size_t>(col)] = underline;
  Touched();
}

void GridModel::Touched() {
  if (Redraw) ContentChanged();
}

void GridModel::ClampCursor() {
  Row.PutSilently(std::min(Row(), Rows - 1));
  RowSel.PutSilently(std::min(RowSel(), Rows - 1));
  Col.PutSilently(std::min(Col(), Cols - 1));
  ColSel.PutSilently(std::min(ColSel(), Cols - 1));
  toldRow_ = std::min(toldRow_, Rows - 1);
  toldCol_ = Col;
}

/// A place outside the cells goes back to where it was.
void GridModel::RequireCursor() {
  const int row = Row < 0 || Row >= Rows ? Row : RowSel;
  const int col = Col < 0 || Col >= Cols ? Col : ColSel;
  if (Row < 0 || Row >= Rows) Row.PutSilently(toldRow_);
  if (Col < 0 || Col >= Cols) Col.PutSilently(toldCol_);
  if (RowSel < 0 || RowSel >= Rows) RowSel.PutSilently(Row);
  if (ColSel < 0 || ColSel >= Cols) ColSel.PutSilently(Col);
  RequireRow(row);
  RequireCol(col);
}

void GridModel::CursorMoved() {
  selectsAll_ = false;
  RowSel.PutSilently(Row);
  ColSel.PutSilently(Col);
  toldCol_ = Col;
  Touched();
  RowColChange.Raise();
  if (toldRow_ == Row) return;
  toldRow_ = Row;
  RowChange.Raise(Row);
}

void GridModel::RequireRoom(std::int64_t rows, std::int64_t cols) const {
  if (rows <= kMostRows && cols <= kMostCols && rows * cols <= kMostCells) return;
  throw HostError("The grid " + Name() + " cannot hold " + std::to_string(rows) + " rows of " +
                  std::to_string(cols) + " columns");
}

void GridModel::ResizeRows() {
  const int asked = Rows;
  Rows.PutSilently(static_cast<int>(rows_.size()));
  if (asked < 0) throw SubscriptError(Name() + " Rows " + std::to_string(asked));
  RequireRoom(asked, Cols);
  try {
    rows_.resize(static_cast<std::size_t>(asked));
  } catch (const std::bad_alloc&) {
    throw HostError("There is not enough memory for " + std::to_string(asked) + " rows of the grid " +
                    Name());
  }
  Rows.PutSilently(asked);
  ClearView();
  ClampCursor();
}

void GridModel::ResizeCols() {
  const int asked = Cols;
  Cols.PutSilently(static_cast<int>(columns_.size()));
  if (asked < 0) throw SubscriptError(Name() + " Cols " + std::to_string(asked));
  RequireRoom(Rows, asked);
  columns_.resize(static_cast<std::size_t>(asked));
  Cols.PutSilently(asked);
  for (RowData& row : rows_) {
    if (row.cells.size() > columns_.size()) row.cells.resize(columns_.size());
  }
  ClampCursor();
}

void GridModel::PropertyChanged(const PropertyBase& property) {
  if (&property == &Rows) {
    ResizeRows();
  } else if (&property == &Cols) {
    ResizeCols();
  } else if (&property == &Row || &property == &Col) {
    RequireCursor();
    CursorMoved();
  } else if (&property == &RowSel || &property == &ColSel) {
    selectsAll_ = false;
    RequireCursor();
  } else if (&property == &Width || &property == &Height) {
    sight_ = {};
  }
  if (&property == &Redraw) shownSoFar_ = false;
  if (&property == &Redraw || Redraw) Control::PropertyChanged(property);
}

Array GridModel::CellTexts(int first, int last, const std::vector<int>& cols) const {
  Array rows;
  for (int row = std::max(first, 0); row <= std::min(last, Rows - 1); ++row) {
    Array cells;
    if (cols.empty()) {
      for (int col = 0; col < Cols; ++col) cells.emplace_back(TextMatrix(row, col));
    } else {
      for (const int col : cols) cells.emplace_back(TextMatrix(row, col));
    }
    rows.emplace_back(std::move(cells));
  }
  return rows;
}

Control::State GridModel::Describe() const {
  State state = Control::Describe();
  Array widths;
  Array heights;
  Array colors;
  Array underlined;
  for (int col = 0; col < Cols; ++col) widths.emplace_back(ColWidth(col));
  for (int row = 0; row < Rows; ++row) {
    heights.emplace_back(RowHeight(row));
    for (const Paint& paint : Paints(row)) {
      colors.emplace_back(Array{row, paint.firstCol, paint.lastCol, paint.backColor, paint.foreColor});
    }
    for (int col = 0; Data(row).extra && col < Cols; ++col) {
      if (CellFontUnderline(row, col)) underlined.emplace_back(Array{row, col});
    }
  }
  state.emplace_back("colwidth", widths);
  state.emplace_back("rowheight", heights);
  state.emplace_back("colors", colors);
  state.emplace_back("underlined", underlined);
  const Rectangle taken = Selection();
  state.emplace_back("selection", Array{taken.firstRow, taken.firstCol, taken.lastRow, taken.lastCol});
  state.emplace_back("selectedamounts", SelectedFiguresText());
  if (HasView()) {
    Array shown;
    for (const int row : ShownRows()) shown.emplace_back(row);
    state.emplace_back("shown", shown);
  }
  if (Look.IsAllowed) {
    state.emplace_back("look", Array{Look.SortedBy(), Look.IsDownwards(), Look.Box.Text()});
  }
  if (Finder.IsOpen()) {
    state.emplace_back("find", Array{Finder.Box.Text(), Finder.HasFound(), Finder.Note()});
  }
  if (Row >= 0 && Row < Rows && Col >= 0 && Col < Cols) {
    const Place cell = CellPlace(Row, Col);
    state.emplace_back("cell", Array{cell.left, cell.top, cell.width, cell.height});
  }
  return state;
}

}  // namespace quillon
