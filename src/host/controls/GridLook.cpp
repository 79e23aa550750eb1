#include "host/controls/GridLook.h"

#include <algorithm>
#include <tuple>

#include "host/controls/GridModel.h"
#include "host/values/Date.h"
#include "host/values/ShownAmount.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

/// What a row is sorted by: dates and figures by their value, then texts in any case; empty cells come last.
struct SortKey {
  enum Kind { Value, Text, Empty };

  SortKey(std::string_view cell, int ofRow) : row(ofRow) {
    if (cell.empty()) {
      kind = Empty;
    } else if (const Date date = Date::Parse(cell); !date.IsEmpty()) {
      value = Date::Days(Date::Of(1970, 1, 1), date);
    } else if (const std::optional<Amount> amount = ShownAmount(cell)) {
      value = amount->Units();
    } else {
      kind = Text;
      text = text::Lower(cell);
    }
  }
  bool operator<(const SortKey& other) const {
    return std::tie(kind, value, text) < std::tie(other.kind, other.value, other.text);
  }

  Kind kind = Value;
  std::int64_t value = 0;
  std::string text;
  int row;
};

}  // namespace

GridLook::GridLook(GridModel& grid) : Box(grid, "FilterBox", Control::kNoIndex, false), grid_(grid) {
  Box.Visible = false;
  Box.Change = [this] {
    if (!open_) return;
    pattern_ = FindPattern(Box.Text);
    Show();
  };
}

void GridLook::UserSort(int col) {
  grid_.RequireReachable();
  if (!IsAllowed) throw Refused("The rows of " + grid_.Name() + " stand in an order of their own");
  if (!grid_.IsColVisible(col)) throw Refused(grid_.Name() + " column " + std::to_string(col) + " is hidden");
  if (col_ != col) {
    col_ = col;
    downwards_ = false;
  } else if (!downwards_) {
    downwards_ = true;
  } else {
    col_ = -1;
  }
  Show();
}

void GridLook::OpenFilter() {
  if (!IsAllowed) return;
  grid_.RequireReachable();
  open_ = typed_ = true;
  Box.Visible = true;
  Box.SelectAll();
  grid_.ContentChanged();
}

void GridLook::CloseFilter() {
  if (!open_) return;
  open_ = typed_ = false;
  Box.Visible = false;
  Box.Text = "";
  pattern_ = {};
  Show();
}

bool GridLook::HandleKey(const KeyEvent& key) {
  switch (key.KeyCode) {
    case keys::kEnter:
      typed_ = false;
      if (Box.Text().empty()) CloseFilter();
      grid_.ContentChanged();
      return true;
    case keys::kUp:
    case keys::kDown:
    case keys::kPageUp:
    case keys::kPageDown:
      typed_ = false;
      return grid_.HandleKey(key);
    default:
      return Box.HandleKey(key);
  }
}

void GridLook::Forget() {
  col_ = -1;
  open_ = typed_ = false;
  Box.Visible = false;
  pattern_ = {};
  Box.Text = "";
}

void GridLook::Show() {
  std::vector<SortKey> keys;
  for (int row = grid_.FixedRows; row < grid_.Rows; ++row) {
    bool isFound = pattern_.IsEmpty();
    for (int col = 0; !isFound && col < grid_.Cols; ++col) {
      isFound = grid_.IsColShown(col) && pattern_.Matches(grid_.Cell(row, col));
    }
    if (isFound) keys.emplace_back(col_ >= 0 ? grid_.Cell(row, col_) : std::string_view(), row);
  }
  if (col_ >= 0) {
    // Alike ones stay in the grid's own order, downwards too.
    std::stable_sort(keys.begin(), keys.end(), [this](const SortKey& a, const SortKey& b) {
      return a.kind == SortKey::Empty || b.kind == SortKey::Empty || !downwards_ ? a < b : b < a;
    });
  }
  if (col_ < 0 && pattern_.IsEmpty()) {
    grid_.DropView();
  } else {
    std::vector<int> rows;
    rows.reserve(keys.size());
    for (const SortKey& key : keys) rows.push_back(key.row);
    grid_.SetView(std::move(rows));
  }
  if (grid_.IsRowShown(grid_.Row)) {
    grid_.Touched();
  } else if (const int first = grid_.OuterRow(1); first >= 0) {
    grid_.KeyMoveTo(first, grid_.Col);
  }
}

}  // namespace quillon
