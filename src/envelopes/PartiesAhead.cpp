#include "envelopes/PartiesAhead.h"

#include <vector>

#include "books/SqlText.h"
#include "host/services/ISession.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr std::size_t kAtOnce = 100;

}  // namespace

long PartiesAhead::CodeAt(int row, int place) const {
  return static_cast<long>(ValInteger(grid_.Cell(row, columns_ + place)));
}

std::shared_ptr<CDataSet> PartiesAhead::RecordAt(int row, int place) {
  const long code = CodeAt(row, place);
  if (!read_.contains(code)) ReadFrom(row, place);
  parties_->Find("mcd=" + books::SqlNumber(code));
  return parties_;
}

void PartiesAhead::ReadFrom(int row, int place) {
  std::vector<std::int64_t> codes;
  read_.clear();
  for (; row < grid_.Rows && read_.size() < kAtOnce; ++row, place = 0) {
    for (; place < columns_ && read_.size() < kAtOnce; ++place) {
      if (read_.insert(CodeAt(row, place)).second) codes.push_back(CodeAt(row, place));
    }
  }
  parties_ = std::make_shared<CDataSet>();
  parties_->CursorLocation = CDataSet::kUseClient;
  parties_->Open("Select * from FAMaster where mcd in (" + books::SqlNumbers(codes) + ")", gSession->MainDb(),
                 3, 1);
}

}  // namespace quillon
