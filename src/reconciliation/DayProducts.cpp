#include "reconciliation/DayProducts.h"

#include <algorithm>
#include <iterator>

#include "books/BooksNames.h"
#include "host/values/Errors.h"

namespace quillon {

namespace {

/// These count on any day but the last one of the period.
constexpr std::int64_t kNotOnTheLastDay[] = {5054, 5055, 5043, 5032, 5022, 5023};

bool IsAmong(const auto& natures, std::int64_t nature) {
  return std::find(std::begin(natures), std::end(natures), nature) != std::end(natures);
}

/// Days from the date that a row tells, or from `none` when it tells nothing.
std::int64_t DaysFrom(const std::string& day, Date none, Date to) {
  const Date from = day.empty() ? none : Date::Parse(day);
  if (from.IsEmpty()) throw HostError("\"" + day + "\" is no date");
  return Date::Days(from, to);
}

}  // namespace

bool CountsForInterest(std::int64_t nature, Date day, Date last) {
  if (IsAmong(books::kContraNatures, nature)) return false;
  return day != last || !IsAmong(kNotOnTheLastDay, nature);
}

DayProducts::DayProducts(std::vector<Movement> movements, Date first, Date last)
    : movements_(std::move(movements)), first_(first), last_(last) {}

void DayProducts::Take(const Movement& movement, DayProduct& group) {
  if (at_ == 0 && movement.IsOpening) {
    balance_ = movement.Debit - movement.Credit;
  } else if (CountsForInterest(movement.Nature, Date::Parse(movement.Day), last_)) {
    group.Debits += movement.Debit;
    group.Credits += movement.Credit;
  }
}

std::optional<DayProduct> DayProducts::Next() {
  if (at_ >= movements_.size()) return std::nullopt;
  DayProduct group;
  group.Day = movements_[at_].Day;
  do {
    Take(movements_[at_], group);
    ++at_;
  } while (at_ < movements_.size() && (movements_[at_].Day.empty() || movements_[at_].Day == group.Day));
  balance_ += group.Debits - group.Credits;
  group.Balance = balance_;
  CountDays(group);
  group.Product = group.Balance * group.Days;
  return group;
}

/// Without a date that ends it a group has as many days as the one before.
void DayProducts::CountDays(DayProduct& group) {
  if (at_ == movements_.size()) {
    days_ = DaysFrom(group.Day, first_, last_) + 1;
  } else if (const Date next = Date::Parse(movements_[at_].Day); !next.IsEmpty()) {
    days_ = DaysFrom(group.Day, first_, next);
  }
  group.Days = days_;
}

}  // namespace quillon
