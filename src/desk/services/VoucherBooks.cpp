#include "desk/services/VoucherBooks.h"

#include "books/BooksNames.h"
#include "books/SqlText.h"
#include "host/data/CDataSet.h"
#include "host/services/IApp.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

/// The firm keeps the book of a bank and the end of its types: "B1,1".
std::string KeptUnder(std::int64_t bank) { return "VoucherEntry.Book." + std::to_string(bank); }

std::string AccountsOf(const VoucherDraft& draft) {
  std::vector<std::int64_t> accounts;
  for (const VoucherLine& line : draft.AllLines()) accounts.push_back(line.Account);
  return "mcd in (" + books::SqlNumbers(accounts) + ")";
}

}  // namespace

VoucherBook VoucherBooks::Of(const VoucherDraft& draft) {
  const std::string prefix = SpecOf(draft.Kind).TypePrefix;
  switch (draft.Kind) {
    case VoucherKind::kBankReceipt:
    case VoucherKind::kBankPayment: {
      const BankBook bank = OfBank(draft.Main);
      return {bank.Book, prefix + bank.Suffix};
    }
    case VoucherKind::kContra: {
      const std::int64_t bank = BankAmong(draft);
      return {bank != 0 ? OfBank(bank).Book : "C", prefix + "1"};
    }
    case VoucherKind::kJournal:
      return {"J", "JD1"};
    case VoucherKind::kSale:
      return {"JS", prefix + "1"};
    case VoucherKind::kPurchase:
      return {"JP", prefix + "1"};
    default:
      return {"C", prefix + "1"};
  }
}

/// The bank that pays, before one that is paid into.
std::int64_t VoucherBooks::BankAmong(const VoucherDraft& draft) {
  const std::string banks = "mbshno=" + books::SqlNumber(books::kBankGroup) + " and mcd=";
  for (const VoucherLine& line : draft.AllLines()) {
    if (year_.RowExists("Select mcd from FAMaster where " + banks + books::SqlNumber(line.Account)))
      return line.Account;
  }
  return 0;
}

VoucherBooks::BankBook VoucherBooks::OfBank(std::int64_t bank) {
  const std::vector<std::string> kept = text::Split(gApp->GetFirmSetting(KeptUnder(bank)), ",");
  if (kept.size() == 2) return {kept[0], kept[1]};
  BankBook found = UsedBook(bank);
  gApp->PutFirmSetting(KeptUnder(bank), found.Book + "," + found.Suffix);
  return found;
}

VoucherBooks::BankBook VoucherBooks::UsedBook(std::int64_t bank) {
  CDataSet used;
  used.Open(
      "Select first 1 dBook,substring(dTrnType from 3) as Suffix,Count(*) as Entries from FAData where dcd=" +
          books::SqlNumber(bank) +
          " and (dTrnType starting with 'BR' or dTrnType starting with 'BP') group by 1,2 order by 3 desc",
      year_);
  if (!used.Eof()) return {used.Field("dBook").ToText(), used.Field("Suffix").ToText()};
  const std::string suffix = FreeSuffix();
  return {"B" + suffix, suffix};
}

std::string VoucherBooks::FreeSuffix() {
  std::string taken = ",";
  CDataSet banks;
  for (banks.Open("Select mcd from FAMaster where mbshno=" + books::SqlNumber(books::kBankGroup), year_);
       !banks.Eof(); banks.MoveNext()) {
    taken += gApp->GetFirmSetting(KeptUnder(banks.Field("mcd").ToInteger())) + ",";
  }
  for (int number = 1;; ++number) {
    std::string suffix = std::to_string(number);
    if (taken.find("," + suffix + ",") == std::string::npos &&
        !year_.RowExists("Select first 1 VoucherID from FAData where dBook=" +
                         books::SqlString("B" + suffix)))
      return suffix;
  }
}

std::int64_t PartyOf(CDbLink& year, const VoucherDraft& draft) {
  const std::string parties =
      "," +
      year.Lookup("FAMaster", "LIST(mcd)",
                  AccountsOf(draft) + " and mbshno in (" + books::SqlNumbers(books::kPartyGroups) + ")")
          .ToText() +
      ",";
  const std::vector<VoucherLine> lines = draft.AllLines();
  const VoucherLine* party = nullptr;
  for (const VoucherLine& line : lines) {
    const bool isParty = parties.find("," + books::SqlNumber(line.Account) + ",") != std::string::npos;
    if (isParty && (party == nullptr || line.Value.Abs() > party->Value.Abs())) party = &line;
  }
  return party != nullptr ? party->Account : 0;
}

std::string NarrationOfCode(CDbLink& common, const std::string& typed) {
  std::string code = text::Trim(typed);
  if (code.starts_with('.')) code.erase(0, 1);
  if (code.empty()) return typed;
  CDataSet kept;
  for (kept.Open("Select NarrationCode,Narration from Narrations where Narration is not null", common);
       !kept.Eof(); kept.MoveNext()) {
    if (text::EqualNoCase(text::Trim(kept.Field("NarrationCode").ToText()), code))
      return kept.Field("Narration").ToText();
  }
  return typed;
}

}  // namespace quillon
