#include "reconciliation/WorkbenchAccount.h"

#include "books/SqlText.h"
#include "books/StoreEntry.h"
#include "host/services/AccountColumns.h"
#include "host/services/host_services.h"

namespace quillon {

WorkbenchAccount::WorkbenchAccount(Form& screen, const long& code, const Date& first, const Date& last,
                                   CMStrip& otherSide)
    : screen_(screen), code_(code), first_(first), last_(last), otherSide_(otherSide) {}

void WorkbenchAccount::StandOn(CGridPlus& grid) { statement_ = &grid; }

void WorkbenchAccount::LetGo() {
  statement_ = nullptr;
  statementRows_.reset();
  Dates.Forget();
}

std::int64_t WorkbenchAccount::MarksRead() const {
  constexpr const char* kMember = "MarksRead";
  const FormPtr caller = screen_.CallingForm;
  return caller && caller->HasMember(kMember) ? caller->Get(kMember).ToInteger() : 0;
}

void WorkbenchAccount::Echo(const books::EntryKey& entry, const std::string& dateText) {
  if (statement_ == nullptr) return;
  if (!statementRows_) {
    statementRows_ =
        std::make_unique<books::EntryRows>(*statement_, account_col::kVoucherId, account_col::kVchSubNo);
  }
  for (const int row : statementRows_->Find(entry)) {
    // Another host's statement may have turned to other rows.
    if (row >= statement_->Rows ||
        books::EntryKey::OfRow(*statement_, row, account_col::kVoucherId, account_col::kVchSubNo) != entry) {
      continue;
    }
    statement_->SetTextMatrix(row, account_col::kClearedOn, dateText);
  }
}

void WorkbenchAccount::StoreClearedDate(const books::EntryKey& entry, Date before, Date date) {
  if (!entry.IsEntry()) throw HostError("This row is no entry, so it can have no cleared date");
  books::StoreEntry(gSession->Year().Db(), entry.Voucher,
                    "Update FAData set dBankDate=" + books::SqlDateOrNull(date) + " where VoucherID=" +
                        books::SqlNumber(entry.Voucher) + " and dVchSubNo=" + books::SqlNumber(entry.Line));
  Dates.Note({entry, before, date});
}

std::string WorkbenchAccount::NarrationWithReference(CDataSet& line) const {
  std::string narration = line.Field("Narration").ToText();
  if (!ShowsReferences) return narration;
  std::int64_t code = 0;
  std::string text;
  gApp->VoucherCrossRef(gSession->Year().Db(), line.Field("VoucherID").ToInteger(),
                        line.Field("dAmt").ToAmount(), code, text);
  return text.empty() ? narration : narration + " : " + text;
}

std::shared_ptr<void> WorkbenchAccount::ExpectOtherSides(const std::string& condition) const {
  return ShowsReferences ? gApp->ExpectCrossRefs(gSession->Year().Db(), condition) : nullptr;
}

void WorkbenchAccount::ShowOtherSide(std::int64_t voucher, Amount amount) {
  std::int64_t code = 0;
  std::string text;
  gApp->VoucherCrossRef(gSession->Year().Db(), voucher, amount, code, text);
  otherSide_.Code = static_cast<long>(code);
}

void WorkbenchAccount::OpenVoucher(std::int64_t voucher) const {
  gApp->OpenVoucher(screen_, voucher, gSession->Year().StartYear(), code_);
}

}  // namespace quillon
