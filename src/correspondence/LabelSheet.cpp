#include "correspondence/LabelSheet.h"

#include <algorithm>
#include <string>

#include "host/values/Text.h"

namespace quillon {

bool LabelSheet::Holds(Place place) const {
  return place.Row >= 0 && place.Row < grid_.Rows && place.Col >= 0 && place.Col < columns_;
}

long LabelSheet::CodeAt(Place place) const {
  return Holds(place) ? static_cast<long>(ValInteger(grid_.Cell(place.Row, place.Col + columns_))) : 0;
}

void LabelSheet::Put(Place place, std::string_view text, long code) {
  grid_.SetTextMatrix(place.Row, place.Col, text);
  grid_.SetTextMatrix(place.Row, place.Col + columns_, code == 0 ? std::string() : std::to_string(code));
}

LabelSheet::Place LabelSheet::After(Place place) const {
  return place.Col + 1 < columns_ ? Place{place.Row, place.Col + 1} : Place{place.Row + 1, 0};
}

LabelSheet::Place LabelSheet::Before(Place place) const {
  return place.Col > 0 ? Place{place.Row, place.Col - 1} : Place{place.Row - 1, columns_ - 1};
}

void LabelSheet::Remove(const GridModel::Rectangle& taken) {
  Place to{taken.firstRow, taken.firstCol};
  for (Place from = to; Holds(from); from = After(from)) {
    if (CodeAt(from) == 0 || taken.Contains(from.Row, from.Col)) continue;
    const bool stays = from.Row == to.Row && from.Col == to.Col;
    if (!stays) Put(to, grid_.TextMatrix(from.Row, from.Col), CodeAt(from));
    to = After(to);
  }
  for (Place rest = to; Holds(rest); rest = After(rest)) Put(rest, "", 0);
  const int used = to.Col > 0 ? to.Row + 1 : to.Row;
  grid_.Rows = std::max(used, 1);
}

}  // namespace quillon
