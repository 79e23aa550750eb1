#include "host/controls/CSelGrid.h"

#include "host/data/CDataSet.h"
#include "host/forms/Form.h"
#include "host/forms/Runtime.h"
#include "host/values/Text.h"

namespace quillon {

bool Finds(std::string_view typed, std::string_view line) {
  return text::Lower(line).starts_with(text::Lower(typed));
}

CSelGrid::CSelGrid(Control& parent, std::string name, int index)
    : Control(parent, std::move(name), index),
      Grid(*this, "Grid", kNoIndex, false),
      Title(*this, "Title", kNoIndex, false) {}

CSelGrid::~CSelGrid() { SetBoundText(nullptr); }

void CSelGrid::SetBoundText(TextBox* box) {
  if (bound_ != nullptr && bound_->Companion == this) bound_->Companion = nullptr;
  bound_ = box;
  if (bound_ != nullptr) bound_->Companion = this;
}

bool CSelGrid::CompanionKey(const KeyEvent& key) {
  if (!Visible || IsEmpty() || key.Shift != 0) return false;
  switch (key.KeyCode) {
    case keys::kUp:
    case keys::kDown:
    case keys::kPageUp:
    case keys::kPageDown:
      meant_ = true;
      return Grid.HandleKey(key);
    case keys::kEnter:
      if (!PickMeant()) NotFound.Raise(bound_ != nullptr ? bound_->Text() : "");
      return true;
    default:
      return false;
  }
}

void CSelGrid::CompanionTyped(const std::string& text) {
  if (Visible) meant_ = !text.empty() && Search(text);
}

bool CSelGrid::PickMeant() {
  if (!meant_ || IsEmpty()) return false;
  Pick(Grid.Row);
  return true;
}

void CSelGrid::Load(const std::string& sql, CDbLink& db, bool captionFlag, int width) {
  CDataSet rows;
  rows.Open(sql, db, 1, 1);
  const int cols = static_cast<int>(rows.FieldNames().size());
  Grid.Redraw = false;
  Grid.Clear();
  Grid.Cols = cols;
  Grid.Rows = static_cast<int>(rows.RecordCount()) + 1;
  for (int col = 0; captionFlag && col < cols; ++col) {
    Grid.SetTextMatrix(0, col, rows.FieldNames()[static_cast<std::size_t>(col)]);
  }
  for (int row = 1; !rows.Eof(); rows.MoveNext(), ++row) {
    for (int col = 0; col < cols; ++col) {
      Grid.SetTextMatrix(row, col, rows.Field(static_cast<std::size_t>(col)).ToText());
    }
  }
  if (width > 0 && cols > 0) Grid.SetColWidth(0, width * gRuntime->TextWidth(Grid.Font, "9"));
  Grid.Redraw = true;
  loaded_ = true;
  meant_ = false;
}

bool CSelGrid::Search(const std::string& text) {
  for (int row = 1; row < Grid.Rows; ++row) {
    if (!Finds(text, Grid.Cell(row, 0))) continue;
    Grid.Row = row;
    return true;
  }
  return false;
}

void CSelGrid::Pick(int row) {
  if (row < 1 || row >= Grid.Rows) throw SubscriptError(FullName() + " row " + std::to_string(row));
  Grid.Row = row;
  if (bound_ != nullptr) bound_->Text = Cell(row, 0);
  Selected.Raise();
}

void CSelGrid::UserPick(int row) {
  RequireReachable();
  if (row < 1 || row >= Grid.Rows) throw Refused(FullName() + " has no row " + std::to_string(row));
  Pick(row);
}

void CSelGrid::UserPick(const std::string& text) {
  RequireReachable();
  for (int row = 1; row < Grid.Rows; ++row) {
    if (Grid.Cell(row, 0) == text) {
      Pick(row);
      return;
    }
  }
  throw Refused(FullName() + " has no line \"" + text + "\"");
}

Control::State CSelGrid::Describe() const {
  State state = Control::Describe();
  state.emplace_back("title", Title.Caption());
  state.emplace_back("row", Grid.Row());
  state.emplace_back("cells", Grid.CellTexts(1, Grid.Rows - 1, {}));
  return state;
}

}  // namespace quillon
