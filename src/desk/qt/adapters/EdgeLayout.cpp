#include "desk/qt/adapters/EdgeLayout.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <utility>

namespace quillon {

namespace {

// Twips. What ends so near an edge was meant to reach it; neighbours may overlap by a hair.
constexpr long kNear = 320;
constexpr long kHair = 30;

long Area(const EdgeLayout::Box& box) { return box.width * box.height; }

bool IsSame(const EdgeLayout::Box& a, const EdgeLayout::Box& b) {
  const auto near = [](long x, long y) { return std::labs(x - y) <= kHair; };
  return near(a.left, b.left) && near(a.top, b.top) && near(a.width, b.width) && near(a.height, b.height);
}

}  // namespace

EdgeLayout::EdgeLayout(std::vector<Item> items, Size whole) : items_(std::move(items)), whole_(whole) {
  FindGround();
  root_ = Cut(ground_, {0, 0, whole.width, whole.height});
}

EdgeLayout::Span EdgeLayout::Along(const Box& box, Axis axis) {
  return axis == Axis::Across ? Span{box.left, box.width} : Span{box.top, box.height};
}

bool EdgeLayout::IsOn(const Box& upper, const Box& lower) const {
  if (IsSame(upper, lower)) return false;
  for (const Axis axis : {Axis::Across, Axis::Down}) {
    const Span a = Along(upper, axis);
    const Span b = Along(lower, axis);
    if (std::min(a.End(), b.End()) - std::max(a.from, b.from) <= kHair) return false;
  }
  return true;
}

/// Of two things that overlap the larger one lies below.
void EdgeLayout::FindGround() {
  std::vector<std::size_t> order(items_.size());
  std::iota(order.begin(), order.end(), 0U);
  std::stable_sort(order.begin(), order.end(), [this](std::size_t a, std::size_t b) {
    return Area(items_[a].place) > Area(items_[b].place);
  });
  for (const std::size_t item : order) {
    const Box& place = items_[item].place;
    const bool isOn = std::any_of(ground_.begin(), ground_.end(),
                                  [&](std::size_t below) { return IsOn(place, items_[below].place); });
    if (!isOn && !items_[item].floats && Area(place) > 0) ground_.push_back(item);
  }
}

std::vector<std::vector<std::size_t>> EdgeLayout::Split(std::vector<std::size_t> items, Axis axis) const {
  const auto span = [&](std::size_t item) { return Along(items_[item].place, axis); };
  std::stable_sort(items.begin(), items.end(),
                   [&](std::size_t a, std::size_t b) { return span(a).from < span(b).from; });
  std::vector<std::vector<std::size_t>> groups;
  long end = 0;
  for (const std::size_t item : items) {
    if (groups.empty() || span(item).from >= end - kHair) groups.emplace_back();
    end = groups.back().empty() ? span(item).End() : std::max(end, span(item).End());
    groups.back().push_back(item);
  }
  return groups;
}

EdgeLayout::Part EdgeLayout::Cut(const std::vector<std::size_t>& items, const Box& cell) const {
  for (const Axis axis : {Axis::Down, Axis::Across}) {
    const std::vector<std::vector<std::size_t>> groups = Split(items, axis);
    if (groups.size() < 2) continue;
    Part part{cell, axis};
    for (const std::vector<std::size_t>& group : groups) {
      Span span = Along(items_[group.front()].place, axis);
      for (const std::size_t item : group) {
        span.length = std::max(span.length, Along(items_[item].place, axis).End() - span.from);
      }
      const Box inside = axis == Axis::Down ? Box{cell.left, span.from, cell.width, span.length}
                                            : Box{span.from, cell.top, span.length, cell.height};
      part.parts.push_back(Cut(group, inside));
    }
    return part;
  }
  return {cell, Axis::Down, {}, items};
}

bool EdgeLayout::Grows(const Part& part, Axis axis) const {
  const auto grows = [&](std::size_t item) {
    return axis == Axis::Across ? items_[item].growsAcross : items_[item].growsDown;
  };
  return std::any_of(part.items.begin(), part.items.end(), grows) ||
         std::any_of(part.parts.begin(), part.parts.end(), [&](const Part& p) { return Grows(p, axis); });
}

/// What the things of the part need beyond their places.
long EdgeLayout::More(const Part& part, Axis axis) const {
  if (axis == Axis::Across) return 0;
  long more = 0;
  for (const std::size_t item : part.items) more = std::max(more, items_[item].moreHeight);
  for (const Part& inner : part.parts) {
    more = part.axis == axis ? more + More(inner, axis) : std::max(more, More(inner, axis));
  }
  return more;
}

long EdgeLayout::Least(const Part& part, Axis axis) const {
  const Span cell = Along(part.cell, axis);
  long least = 0;
  if (part.parts.empty()) {
    for (const std::size_t item : part.items) {
      const Item& thing = items_[item];
      const Span span = Along(thing.place, axis);
      const bool grows = axis == Axis::Across ? thing.growsAcross : thing.growsDown;
      const long own = axis == Axis::Across ? thing.least.width : thing.least.height;
      const long beside =
          span.from - cell.from + (cell.End() - span.End() <= kNear ? cell.End() - span.End() : 0);
      least = std::max(least, beside + (grows ? std::min(own, span.length) : span.length));
    }
    return least + More(part, axis);
  }
  if (part.axis != axis) {
    for (const Part& inner : part.parts) least = std::max(least, Least(inner, axis));
    return least;
  }
  const bool reaches = cell.End() - Along(part.parts.back().cell, axis).End() <= kNear;
  long end = cell.from;
  for (const Part& inner : part.parts) {
    const Span span = Along(inner.cell, axis);
    const bool gives = reaches && Grows(inner, axis);
    least += span.from - end + (gives ? Least(inner, axis) : span.length + More(inner, axis));
    end = span.End();
  }
  return least + (reaches ? cell.End() - end : 0);
}

EdgeLayout::Size EdgeLayout::Least() const { return {Least(root_, Axis::Across), Least(root_, Axis::Down)}; }

/// The stretches of the parts when the whole part has this one.
std::vector<EdgeLayout::Span> EdgeLayout::Share(const Part& part, Span now) const {
  const Axis axis = part.axis;
  const Span cell = Along(part.cell, axis);
  const bool reaches = cell.End() - Along(part.parts.back().cell, axis).End() <= kNear;
  long extra = now.length - cell.length;
  for (const Part& inner : part.parts) {
    if (!reaches || !Grows(inner, axis)) extra -= More(inner, axis);
  }
  // Growing parts take in proportion to their length, and give in proportion to what they can.
  const auto weight = [&](const Part& inner) {
    if (!reaches || !Grows(inner, axis)) return 0L;
    const long length = Along(inner.cell, axis).length;
    return extra > 0 ? length : std::max(0L, length - Least(inner, axis));
  };
  long weights = 0;
  long widest = 0;
  long end = cell.from;
  for (const Part& inner : part.parts) {
    weights += weight(inner);
    widest = std::max(widest, Along(inner.cell, axis).from - end);
    end = Along(inner.cell, axis).End();
  }
  std::vector<Span> spans;
  end = cell.from;
  long at = now.from;
  for (const Part& inner : part.parts) {
    const Span old = Along(inner.cell, axis);
    const long gap = old.from - end;
    at += gap;
    // Where nothing grows the widest gap does.
    if (reaches && weights == 0 && gap == widest && gap > 0) at += std::exchange(extra, 0);
    long length = old.length;
    if (const long own = weight(inner); own > 0 && weights > 0) {
      const long given = extra * own / weights;
      extra -= given;
      weights -= own;
      length += given;
    } else {
      length += More(inner, axis);
    }
    spans.push_back({at, length});
    at += length;
    end = old.End();
  }
  return spans;
}

/// By the edges that it is near to; what stands in the middle stays there.
EdgeLayout::Span EdgeLayout::Clinging(Span old, Span within, Span now) {
  const long before = old.from - within.from;
  const long behind = within.End() - old.End();
  const long extra = now.length - within.length;
  if (before <= kNear && behind <= kNear) return {now.from + before, std::max(0L, old.length + extra)};
  if (behind <= kNear) return {now.from + before + extra, old.length};
  if (std::labs(before - behind) <= kNear) return {now.from + std::max(0L, before + extra / 2), old.length};
  return {now.from + before, old.length};
}

void EdgeLayout::Lay(const Part& part, const Box& now, std::vector<Box>& places) const {
  if (part.parts.empty()) {
    for (const std::size_t item : part.items) {
      const Box& old = items_[item].place;
      const Span across =
          Clinging(Along(old, Axis::Across), Along(part.cell, Axis::Across), Along(now, Axis::Across));
      const Span down =
          Clinging(Along(old, Axis::Down), Along(part.cell, Axis::Down), Along(now, Axis::Down));
      places[item] = {across.from, down.from, across.length, down.length};
    }
    return;
  }
  const std::vector<Span> spans = Share(part, Along(now, part.axis));
  for (std::size_t i = 0; i < spans.size(); ++i) {
    const Box inside = part.axis == Axis::Down ? Box{now.left, spans[i].from, now.width, spans[i].length}
                                               : Box{spans[i].from, now.top, spans[i].length, now.height};
    Lay(part.parts[i], inside, places);
  }
}

std::vector<EdgeLayout::Box> EdgeLayout::At(Size size) const {
  std::vector<Box> places(items_.size());
  const Box whole{0, 0, whole_.width, whole_.height};
  const Box now{0, 0, size.width, size.height};
  Lay(root_, now, places);
  for (std::size_t item = 0; item < items_.size(); ++item) {
    if (std::find(ground_.begin(), ground_.end(), item) != ground_.end()) continue;
    const Box& old = items_[item].place;
    Box below = whole;
    Box belowNow = now;
    for (const std::size_t ground : ground_) {
      if (!IsOn(old, items_[ground].place)) continue;
      below = items_[ground].place;
      belowNow = places[ground];
      break;  // the largest comes first
    }
    const Span across =
        Clinging(Along(old, Axis::Across), Along(below, Axis::Across), Along(belowNow, Axis::Across));
    const Span down = Clinging(Along(old, Axis::Down), Along(below, Axis::Down), Along(belowNow, Axis::Down));
    places[item] = {across.from, down.from, across.length, down.length};
  }
  return places;
}

}  // namespace quillon
