#include "host/data/CDataSet.h"
#include "host/forms/CDateDialog.h"
#include "host/forms/CPartyFilter.h"
#include "host/forms/CPickList.h"
#include "host/forms/Runtime.h"
#include "host/values/Text.h"

namespace quillon {

bool CDateDialog::Show() {
  DateRequest request{title_, caption_, single_, date1_, date2_};
  if (!gRuntime->AskDate(request)) return false;
  date1_ = request.First;
  date2_ = request.Second;
  return true;
}

bool CPartyFilter::Show() {
  PartiesRequest request;
  request.Alias = alias_;
  if (!gRuntime->AskParties(request)) return false;
  clause_ = request.Clause;
  caption_ = request.Caption;
  orderBy_ = request.OrderBy;
  joinCnd_ = request.JoinCnd;
  return true;
}

void CPickList::AddColumn(const std::string& title, long width, int alignment) {
  columns_.push_back({title, width, alignment});
}

void CPickList::AddItem(const std::string& cells, std::int64_t data) {
  lines_.push_back({text::Split(cells, "\t"), data});
}

void CPickList::Load(const std::string& sql, CDbLink& db) {
  CDataSet rows;
  for (rows.Open(sql, db); !rows.Eof(); rows.MoveNext()) {
    lines_.push_back({{rows.Field(std::size_t{0}).ToText()}, rows.Field(std::size_t{1}).ToInteger()});
  }
}

bool CPickList::Show() {
  std::size_t item = 0;
  if (!gRuntime->AskPick(*this, item)) return false;
  picked_ = lines_.at(item).data;
  return true;
}

}  // namespace quillon
