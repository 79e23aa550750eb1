#include "host/controls/CSelGrid.h"

#include <algorithm>

#include "host/controls/EditableGrid.h"
#include "host/data/CDataSet.h"
#include "host/forms/Form.h"
#include "host/forms/Runtime.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr long kLowest = 1200;

/// Where a field, or the cell that a grid has in edit, lies on the form.
GridModel::Place PlaceOnForm(Control& field) {
  const Control::Corner corner = field.CornerOnForm();
  const auto* grid = dynamic_cast<EditableGrid*>(&field);
  if (grid == nullptr) return {corner.left, corner.top, field.Width, field.Height};
  GridModel::Place place = grid->CellPlace(grid->EditRow(), grid->EditCol());
  place.left += corner.left;
  place.top += corner.top;
  return place;
}

}  // namespace

CSelGrid::CSelGrid(Control& parent, std::string name, int index)
    : Control(parent, std::move(name), index),
      Grid(*this, "Grid", kNoIndex, false),
      Title(*this, "Title", kNoIndex, false) {}

CSelGrid::~CSelGrid() { SetBoundText(nullptr); }

void CSelGrid::SetBoundText(TextBox* box) {
  if (bound_ != nullptr && bound_->Companion == this) bound_->Companion = nullptr;
  bound_ = box;
  hasChoice_ = false;
  Grid.ClearView();
  if (bound_ != nullptr) bound_->Companion = this;
}

void CSelGrid::OpenUnder(Control& field) { OpenUnder(field, Room()); }

void CSelGrid::OpenUnder(Control& field, const Room& room) {
  TextBox* const box = field.TypedBox();
  if (box == nullptr) throw HostError("A list cannot open under " + field.Name());
  if (!open_) {
    designedWidth_ = Width;
    designedHeight_ = Height;
  }
  open_ = true;
  const GridModel::Place place = PlaceOnForm(field);
  const Corner origin = Parent()->CornerOnForm();
  const long formWidth = OwnerForm().ScaleWidth();
  const long formHeight = OwnerForm().ScaleHeight();
  const long width = std::min(room.width > 0 ? room.width : designedWidth_, formWidth);
  const long left = std::max(std::min(place.left + room.indent, formWidth - width), 0L);
  long top = place.top + place.height;
  const long below = formHeight - std::max(room.aboveBottom, 0L) - top;
  const long wanted = room.aboveBottom >= 0 ? below : designedHeight_;
  long height = std::min(wanted, below);
  if (height < std::min(wanted, kLowest) && place.top > below) {
    height = std::min(std::max(wanted, designedHeight_), place.top);
    top = place.top - height;
  }
  Move(left - origin.left, top - origin.top, width, std::max(height, 0L));
  SetBoundText(box);
  Visible = true;
}

void CSelGrid::Close() {
  Visible = false;
  SetBoundText(nullptr);
  if (!open_) return;
  open_ = false;
  Width = designedWidth_;
  Height = designedHeight_;
}

/// The inner grid has the room below the title, so that its keys go a screenful.
void CSelGrid::PlaceInside() {
  const long title = Title.Caption().empty() ? 0 : GridModel::kTitleLine;
  Grid.Move(0, title, Width, std::max(Height - title, 0L));
}

Variant CSelGrid::Get(const std::string& member) {
  return Control::Get(text::EqualNoCase(member, "TitleLabel") ? "Title" : member);
}

bool CSelGrid::CompanionKey(const KeyEvent& key) {
  if (!Visible || IsEmpty() || key.Shift != 0) return false;
  switch (key.KeyCode) {
    case keys::kUp:
    case keys::kDown:
    case keys::kPageUp:
    case keys::kPageDown:
      hasChoice_ = Grid.OuterRow(1) >= 0;
      PlaceInside();
      return Grid.HandleKey(key);
    case keys::kEnter:
      // A line that nobody went to or typed is not taken.
      if (PickChoice()) return true;
      if (!NotFound) return false;
      NotFound.Raise(bound_ != nullptr ? bound_->Text() : "");
      return true;
    default:
      return false;
  }
}

void CSelGrid::CompanionTyped(const std::string& text) {
  hasChoice_ = Visible && Search(text);
  if (TakesNewNames && !text::Lower(Cell(Grid.Row, 0)).starts_with(text::Lower(text))) hasChoice_ = false;
}

bool CSelGrid::CompanionEscape() {
  if (!open_) return false;
  Close();
  return true;
}

bool CSelGrid::PickChoice() {
  if (!HasChoice() || IsEmpty()) return false;
  Pick(Grid.Row);
  return true;
}

void CSelGrid::Load(const std::string& sql, CDbLink& db, bool captionFlag, int width) {
  CDataSet rows;
  rows.Open(sql, db, 1, 1);
  const int cols = static_cast<int>(rows.FieldNames().size());
  Grid.Redraw = false;
  names_.Clear();
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
}

/// The name is the first column; of the others what is shown counts.
void CSelGrid::ReadNames() {
  names_.Clear();
  for (int row = 1; row < Grid.Rows; ++row) {
    std::string beside;
    for (int col = 1; col < Grid.Cols; ++col) {
      if (Grid.IsColVisible(col)) beside += " " + Grid.TextMatrix(row, col);
    }
    names_.Add(Grid.Cell(row, 0), beside);
  }
}

bool CSelGrid::Search(const std::string& text) {
  if (names_.Count() != Grid.Rows - 1) ReadNames();
  if (text.empty()) {
    Grid.ClearView();
    return false;
  }
  std::vector<int> rows = names_.Find(text);
  for (int& row : rows) ++row;
  const int best = rows.empty() ? 0 : rows.front();
  Grid.SetView(std::move(rows));
  if (best > 0) Grid.Row = best;
  return best > 0;
}

void CSelGrid::Pick(int row) {
  if (row < 1 || row >= Grid.Rows) throw SubscriptError(FullName() + " row " + std::to_string(row));
  Grid.Row = row;
  hasChoice_ = false;
  Grid.ClearView();
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

void CSelGrid::ReleaseHeavy() {
  loaded_ = false;
  names_.Clear();
  Control::ReleaseHeavy();
}

Control::State CSelGrid::Describe() const {
  State state = Control::Describe();
  state.emplace_back("title", Title.Caption());
  state.emplace_back("row", Grid.Row());
  state.emplace_back("haschoice", HasChoice());
  if (bound_ != nullptr) {
    Control& holder = *bound_->Parent();
    state.emplace_back("bound", holder.TypedBox() == bound_ ? holder.Name() : bound_->Name());
  }
  Array shown;
  for (const int row : Grid.ShownRows()) shown.emplace_back(row);
  state.emplace_back("shown", shown);
  state.emplace_back("cells", Grid.CellTexts(1, Grid.Rows - 1, {}));
  return state;
}

}  // namespace quillon
