#include "desk/qt/adapters/FormRoom.h"

#include <algorithm>
#include <utility>

#include "desk/qt/adapters/Scale.h"
#include "host/controls/host_controls.h"

namespace quillon {

namespace {

// Twips.
constexpr long kLeastButton = 1125;
constexpr long kLeastLine = 900;
constexpr long kBar = 240;
constexpr EdgeLayout::Size kLeastList{3000, 1800};
constexpr int kLeastRows = 3;

bool IsHolder(const Control* control) {
  return dynamic_cast<const PictureBox*>(control) != nullptr ||
         dynamic_cast<const Frame*>(control) != nullptr;
}

bool HasMeasures(const Control* holder) {
  const auto* const surface = dynamic_cast<const Surface*>(holder);
  if (surface != nullptr && !surface->Lines().empty()) return true;
  const std::vector<Control*>& inside = holder->Children();
  return std::any_of(inside.begin(), inside.end(), [](const Control* control) {
    return dynamic_cast<const MSChart*>(control) != nullptr || (IsHolder(control) && HasMeasures(control));
  });
}

EdgeLayout LayoutOf(const Control& holder, EdgeLayout::Size own, long width);

/// A bar whose keys would become too narrow has them in two lines.
void AskBar(const CButtonBar& bar, long width, EdgeLayout::Item& item) {
  const long keys = bar.Count();
  item.growsAcross = true;
  item.least.width = (keys + 1) / 2 * kLeastButton;
  if (keys * kLeastButton > width) item.moreHeight = item.place.height;
}

/// Titles, totals and some rows.
long LeastHeight(const GridModel& grid) {
  long height = grid.Title().empty() ? 0 : GridModel::kTitleLine;
  for (int row = 0; row < std::min(grid.FixedRows(), grid.Rows()); ++row) height += grid.RowHeight(row);
  const auto* const plus = dynamic_cast<const CGridPlus*>(&grid);
  if (plus != nullptr) height += plus->Footer.Rows() * plus->FooterLine();
  return height + kLeastRows * std::max(grid.RowHeightMin(), GridModel::kDefaultRowHeight) + kBar;
}

EdgeLayout::Item ItemOf(const Control& control, long width) {
  EdgeLayout::Item item{{control.Left, control.Top, control.Width, control.Height}};
  item.least = {kLeastLine, item.place.height};
  if (IsHolder(&control)) {
    const EdgeLayout inside = LayoutOf(control, {control.Width, control.Height}, width);
    item.growsAcross = true;
    item.growsDown = inside.GrowsDown();
    item.least = inside.Least();
  } else if (const auto* const bar = dynamic_cast<const CButtonBar*>(&control)) {
    AskBar(*bar, width, item);
  } else if (const auto* const box = dynamic_cast<const TextBox*>(&control)) {
    // Its lines were broken for the width that it has.
    item.growsAcross = item.growsDown = box->MultiLine;
    item.least = {item.place.width, kLeastList.height};
  } else if (const auto* const grid = dynamic_cast<const GridModel*>(&control)) {
    item.growsAcross = item.growsDown = true;
    item.least = {kLeastList.width, LeastHeight(*grid)};
  } else if (dynamic_cast<const ListBox*>(&control) != nullptr) {
    item.growsAcross = item.growsDown = true;
    item.least = kLeastList;
  } else {
    item.growsAcross =
        dynamic_cast<const Label*>(&control) != nullptr || dynamic_cast<const CMStrip*>(&control) != nullptr;
    item.floats = dynamic_cast<const CSelGrid*>(&control) != nullptr;
  }
  return item;
}

EdgeLayout LayoutOf(const Control& holder, EdgeLayout::Size own, long width) {
  std::vector<EdgeLayout::Item> items;
  for (const Control* control : holder.Children()) items.push_back(ItemOf(*control, width));
  return {std::move(items), own};
}

}  // namespace

EdgeLayout::Size FormRoom::SizeIn(const Form& form, EdgeLayout::Size room) {
  const EdgeLayout::Size own{form.Width, form.Height};
  if (room == own || HasMeasures(&form)) return own;
  const EdgeLayout::Size least = LayoutOf(form, own, room.width).Least();
  return {std::max(room.width, least.width), std::max(room.height, least.height)};
}

bool FormRoom::Lay(const Form& form, EdgeLayout::Size size) {
  const std::map<const Control*, EdgeLayout::Box> before = std::exchange(places_, {});
  const EdgeLayout::Size own{form.Width, form.Height};
  if (size != own) LayInside(form, own, size);
  return places_ != before;
}

void FormRoom::LayInside(const Control& holder, EdgeLayout::Size own, EdgeLayout::Size size) {
  const std::vector<EdgeLayout::Box> boxes = LayoutOf(holder, own, size.width).At(size);
  for (std::size_t child = 0; child < boxes.size(); ++child) {
    const Control& control = *holder.Children()[child];
    const EdgeLayout::Box& box = boxes[child];
    places_[&control] = box;
    if (IsHolder(&control)) {
      LayInside(control, {control.Width, control.Height}, {box.width, box.height});
    }
  }
}

QRect FormRoom::PlaceOf(const Control& control) const {
  const auto laid = places_.find(&control);
  if (laid == places_.end()) return Scale::Rect(control);
  const EdgeLayout::Box& box = laid->second;
  const int left = Scale::Px(box.left);
  const int top = Scale::Px(box.top);
  return {left, top, Scale::Px(box.left + box.width) - left, Scale::Px(box.top + box.height) - top};
}

}  // namespace quillon
