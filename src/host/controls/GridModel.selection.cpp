#include "host/controls/GridModel.h"

#include <algorithm>

#include "host/controls/SpreadsheetText.h"
#include "host/forms/Runtime.h"
#include "host/services/IStd.h"
#include "host/values/ShownAmount.h"
#include "host/values/Text.h"

namespace quillon {

GridModel::Rectangle GridModel::Selection() const {
  const auto [firstRow, lastRow] = std::minmax(Row(), RowSel());
  const auto [firstCol, lastCol] = std::minmax(Col(), ColSel());
  if (selectsAll_) return {FixedRows, Rows - 1, 0, Cols - 1};
  Rectangle taken{firstRow, lastRow, firstCol, lastCol};
  if (SelectionMode == 1) {
    taken.firstCol = 0;
    taken.lastCol = Cols - 1;
  } else if (SelectionMode == 2) {
    taken.firstRow = FixedRows;
    taken.lastRow = Rows - 1;
  }
  return taken;
}

bool GridModel::TakesWholeRows() const {
  return selectsAll_ || SelectionMode == 1 || (Col() == ColSel() && Col < Cols && !IsColShown(Col));
}

std::vector<int> GridModel::SelectedRows() const {
  if (selectsAll_ || SelectionMode == 2) return ShownRows();
  std::vector<int> rows;
  const bool isDown = IsBelow(RowSel, Row);
  const int last = isDown ? RowSel : Row;
  for (int row = isDown ? Row : RowSel; row >= 0 && IsBelow(last, row); row = RowBeside(row, 1)) {
    if (row >= FixedRows && row < Rows && IsRowShown(row)) rows.push_back(row);
  }
  return rows;
}

/// On the screen, or the same one.
bool GridModel::IsBelow(int row, int other) const {
  return view_ ? PlaceInView(row) >= PlaceInView(other) : row >= other;
}

std::vector<int> GridModel::SelectedCols() const {
  const Rectangle taken = Selection();
  std::vector<int> cols;
  for (int col = 0; col < Cols; ++col) {
    const bool isTaken = TakesWholeRows() || (col >= taken.firstCol && col <= taken.lastCol);
    if (isTaken && IsColShown(col)) cols.push_back(col);
  }
  return cols;
}

bool GridModel::IsSelected(int row, int col) const {
  const Rectangle taken = Selection();
  const bool isBetween = IsBelow(row, Row) != IsBelow(row, RowSel) || row == Row || row == RowSel;
  return (isBetween || selectsAll_ || SelectionMode == 2) &&
         (TakesWholeRows() || (col >= taken.firstCol && col <= taken.lastCol));
}

void GridModel::UserSelectAll() {
  RequireReachable();
  selectsAll_ = OuterRow(1) >= 0;
  ContentChanged();
}

void GridModel::UserSelect(int row, int col, int rowSel, int colSel) {
  RequireUserCell(rowSel, colSel);
  if (!IsColVisible(colSel)) throw Refused(Name() + " column " + std::to_string(colSel) + " is hidden");
  UserMoveTo(row, col);
  RowSel = rowSel;
  ColSel = colSel;
}

void GridModel::UserExtendTo(int row, int col) { UserSelect(Row, UserCol(), row, col); }

// --- Copying

std::string GridModel::SelectedText(bool headings) const {
  const std::vector<int> cols = SelectedCols();
  const std::vector<int> rows = SelectedRows();
  if (cols.empty() || rows.empty()) return {};
  std::string lines;
  const auto add = [&](int row, bool isTitle) {
    for (const int col : cols) {
      if (col != cols.front()) lines += '\t';
      const bool isFigure = !isTitle && ColAlignment(col) == kAlignRight;
      lines += SpreadsheetText(Cell(row, col), isFigure);
    }
    lines += '\n';
  };
  for (int row = 0; headings && row < FixedRows; ++row) {
    if (IsTitleShown(row)) add(row, true);
  }
  for (const int row : rows) add(row, false);
  lines.pop_back();
  return lines;
}

bool GridModel::HandleCtrlKey(const KeyEvent& key) {
  const bool shift = key.Shift == (keys::kCtrl | keys::kShift);
  if (key.Shift != keys::kCtrl && !shift) return false;
  if (key.KeyCode == 'A' && !shift) {
    UserSelectAll();
  } else if (key.KeyCode == 'C') {
    const std::string text = SelectedText(shift);
    if (!text.empty()) gRuntime->SetClipboardText(text);
  } else if (key.KeyCode == keys::kSpace && !shift) {
    const bool isCell = Row >= FixedRows && Row < Rows && Col >= 0 && Col < Cols;
    if (isCell && !Cell(Row, Col).empty()) gRuntime->ShowCell(*this, TextMatrix(Row, Col));
  } else if (key.KeyCode == 'F') {
    shift ? Look.OpenFilter() : Finder.Open();
  } else if (key.KeyCode == 'G') {
    Finder.Again(shift);
  } else {
    return false;
  }
  return true;
}

std::vector<Control::KeyChoice> GridModel::KeyChoices() const {
  constexpr int kBoth = keys::kCtrl | keys::kShift;
  std::vector<KeyChoice> choices{{"Copy", {'C', keys::kCtrl}},
                                 {"Copy with Headings", {'C', kBoth}},
                                 {"Select All", {'A', keys::kCtrl}},
                                 {"Find …", {'F', keys::kCtrl}}};
  if (Finder.IsAgain()) choices.push_back({"Find Next", {'G', keys::kCtrl}});
  if (Look.IsAllowed) choices.push_back({"Show Only …", {'F', kBoth}});
  if (Undo) choices.push_back({"Undo", {'Z', keys::kCtrl}});
  if (Redo) choices.push_back({"Redo", {'Y', keys::kCtrl}});
  return choices;
}

// --- Amounts

std::vector<GridModel::Figures> GridModel::SelectedFigures() const {
  std::vector<Figures> all;
  const std::vector<int> rows = SelectedRows();
  for (const int col : SelectedCols()) {
    if (ColAlignment(col) != kAlignRight) continue;
    Figures figures{col, 0, {}, {}, {}};
    for (const int row : rows) {
      const std::optional<Amount> amount = ShownAmount(Cell(row, col));
      if (!amount) continue;
      figures.sum += *amount;
      figures.least = figures.count == 0 ? *amount : std::min(figures.least, *amount);
      figures.most = figures.count == 0 ? *amount : std::max(figures.most, *amount);
      ++figures.count;
    }
    if (figures.count > 0) all.push_back(figures);
  }
  return all;
}

std::string GridModel::SelectedFiguresText() const {
  // Without books there is no one who writes amounts.
  if (gStd == nullptr || !IsBlockSelected()) return {};
  std::vector<Figures> all;
  try {
    all = SelectedFigures();
  } catch (const OverflowError&) {
    return "The sum is too large to be shown";
  }
  // The sum of running balances beside other amounts says nothing.
  const std::vector<int> rows = SelectedRows();
  const auto isBalance = [&](const Figures& figures) {
    return std::any_of(rows.begin(), rows.end(), [&](int row) {
      const std::string_view cell = Cell(row, figures.col);
      return cell.ends_with("Dr.") || cell.ends_with("Cr.");
    });
  };
  if (!std::all_of(all.begin(), all.end(), isBalance)) std::erase_if(all, isBalance);
  std::vector<std::string> parts;
  for (const Figures& figures : all) {
    if (figures.count < 2) continue;
    const std::string heading = all.size() > 1 && FixedRows > 0 ? TextMatrix(0, figures.col) + ": " : "";
    parts.push_back(heading + std::to_string(figures.count) + " amounts, sum " +
                    gStd->FormatAmount(figures.sum, "C2") + ", " + gStd->FormatAmount(figures.least, "C2") +
                    " to " + gStd->FormatAmount(figures.most, "C2"));
  }
  return text::Join(parts, "   ");
}

}  // namespace quillon
