#include "host/controls/ColumnRoom.h"

#include <algorithm>

namespace quillon {

namespace {

// Two columns of names have the room together, a short text beside a narration has none of it.
constexpr long kNearlyWidest = 70;  // per cent
constexpr long kLeastOfText = 33;

/// Takes of the widths what is missing (below 0), as far as the reserves go and in proportion to them.
void Take(std::vector<long>& widths, const std::vector<long>& reserves, long& missing) {
  long whole = 0;
  for (const long reserve : reserves) whole += reserve;
  long wanted = std::min(whole, -missing);
  missing += wanted;
  for (std::size_t col = 0; col < widths.size() && whole > 0; ++col) {
    const long taken = wanted * reserves[col] / whole;
    widths[col] -= taken;
    wanted -= taken;
    whole -= reserves[col];
  }
}

}  // namespace

/// Figures alone share alike, unless a person has set one of them.
std::vector<bool> ColumnRoom::Takers(const std::vector<Column>& columns) {
  long widest = 0;
  bool isKept = false;
  for (const Column& column : columns) {
    isKept = isKept || column.kept > 0;
    if (column.isText) widest = std::max(widest, column.stated);
  }
  std::vector<bool> takers;
  for (const Column& column : columns) {
    const bool isWide = widest > 0 ? column.isText && column.stated * 100 >= widest * kNearlyWidest : !isKept;
    takers.push_back(isWide && column.stated > 0 && column.kept == 0);
  }
  return takers;
}

std::vector<long> ColumnRoom::Share(const std::vector<Column>& columns, long room) {
  const std::vector<bool> takers = Takers(columns);
  std::vector<long> widths;
  std::vector<long> reserves;
  std::vector<long> texts;
  for (std::size_t col = 0; col < columns.size(); ++col) {
    const Column& column = columns[col];
    widths.push_back(column.Width());
    room -= column.Width();
    const bool gives = !takers[col] && column.kept == 0 && column.least > 0;
    reserves.push_back(gives ? std::max(0L, column.stated - column.least) : 0);
    texts.push_back(takers[col] && column.isText ? column.stated * (100 - kLeastOfText) / 100 : 0);
  }
  if (room < 0) {
    Take(widths, reserves, room);
    Take(widths, texts, room);
    return widths;
  }
  long weights = 0;
  for (std::size_t col = 0; col < columns.size(); ++col) weights += takers[col] ? columns[col].stated : 0;
  for (std::size_t col = 0; col < columns.size(); ++col) {
    if (!takers[col] || weights == 0) continue;
    // By what is left, so that nothing is lost by rounding.
    const long given = room * columns[col].stated / weights;
    widths[col] += given;
    room -= given;
    weights -= columns[col].stated;
  }
  return widths;
}

}  // namespace quillon
