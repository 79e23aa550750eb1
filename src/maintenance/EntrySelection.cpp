#include "maintenance/EntrySelection.h"

#include "books/SqlText.h"
#include "host/forms/Fields.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

/// With all ticked there is no condition, so that what is added to the account meanwhile is taken too.
std::string OneOf(const std::string& column, const TickedNames& ticked) {
  if (ticked.IsAll) return "";
  return " And " + column + " in (" + books::SqlStrings(ticked.Names) + ")";
}

}  // namespace

TickedNames TickedNames::Of(const ListBox& list) {
  return {TickedItems(list), list.SelCount() == list.ListCount()};
}

std::string EntrySelection::Query() const {
  std::string query =
      "Select A.* from FAData a Inner Join FANar n on a.NarrationID=n.NarrationID Where a.DCD=" +
      books::SqlNumber(Account) + " and a.dVchDate between " + Dates + " And a.dTrnType<>'0B'";
  query += OneOf("a.dBook", Books);
  query += OneOf("a.dTrnType", Types);
  if (Which == Side::kCredits) query += " and a.dAmt<0";
  if (Which == Side::kDebits) query += " and a.dAmt>0";
  if (!Narration.empty()) {
    query += " And n.Narration Like '%" + text::ReplaceAll(Narration, "'", "''") + "%'";
  }
  return query;
}

}  // namespace quillon
