#include "desk/sample/SampleFirm.h"

#include <algorithm>
#include <string_view>

#include "books/Right.h"
#include "desk/firm/Firm.h"
#include "desk/firm/Schema.h"
#include "desk/sample/SampleHistory.h"
#include "desk/sample/SampleMasters.h"
#include "desk/sample/SamplePiece.h"
#include "desk/sample/SampleRandom.h"
#include "desk/sample/SampleYear.h"
#include "host/values/Errors.h"

namespace quillon {

namespace {

const FirmDetails kFirm{"Sharda Trading Co.",    "R. K. Joshi", "Partner", "14, Budhwar Peth",
                        "Near City Post Office", "Laxmi Road",  "Pune",    "411002",
                        "Maharashtra",           "020-24451122"};

void FillCommon(FirebirdLink& common) {
  const std::pair<const char*, const char*> narrations[] = {{"CP", "Being cash paid"},
                                                            {"CR", "Being cash received"},
                                                            {"CHQ", "By cheque no."},
                                                            {"DD", "By demand draft no."},
                                                            {"INT", "Interest charged up to date"},
                                                            {"TRF", "Amount transferred as per your letter"}};
  for (const auto& [code, text] : narrations) {
    const Variant values[] = {code, text};
    common.ExecuteWith("insert into Narrations (NarrationCode,Narration) values (?,?)", values);
  }
  const std::pair<int, const char*> parameters[] = {
      {586, "No"}, {962, "Yes"}, {1025, "2"}, {1029, "Apr-Mar"}};
  for (const auto& [number, text] : parameters) {
    const Variant values[] = {number, text};
    common.ExecuteWith("insert into FirmParameters (ParameterNo,ParameterText) values (?,?)", values);
  }
  const std::pair<const char*, int> users[] = {{"Joshi", 9}, {"Clerk", 3}};
  for (const auto& [name, level] : users) {
    const Variant values[] = {name, level};
    common.ExecuteWith("insert into Users (UserName,UserLevel) values (?,?)", values);
  }
  // The clerk works everywhere but prints no reconciliation, and does no bulk work.
  for (const Right& right : Rights()) {
    if (std::string_view(right.Key).starts_with("bulk.")) continue;
    const bool prints = std::string_view(right.Key) != "acst.reconciliation";
    const Variant values[] = {"Clerk", right.Key, prints ? "NP" : "N"};
    common.ExecuteWith("insert into UserRights (UserName,RightKey,Actions) values (?,?,?)", values);
  }
  for (const SamplePiece& piece : SamplePieces()) {
    if (piece.WriteCommon != nullptr) piece.WriteCommon(common);
  }
}

/// What stands open and in balance on the first day comes from a year that has no database.
SampleCarry FirstCarry(const SampleMasters& masters, SampleRandom& random, Date start) {
  SampleCarry carry;
  for (const SampleAccount& account : masters.Accounts()) carry.Closing[account.Code] = account.Opening;
  for (int i = 0; i < 9; ++i) {
    const int bank = SampleCode::kMainBank + i % 3;
    const Amount value = random.Money();
    SampleVoucher voucher;
    voucher.Day = start.AddDays(i - 12);
    voucher.Book = SampleVoucher::BankBook(bank);
    voucher.Type = SampleVoucher::ReceiptType(bank);
    voucher.Number = std::to_string(90001 + i);
    voucher.Narration = "Chq.No. " + std::to_string(random.Between(100000, 999999)) + " received";
    voucher.Nature = 5001;
    voucher.Party = random.Pick(masters.Debtors())->Code;
    voucher.DocumentRows = 1;
    voucher.Lines = {{bank, value, {}}, {voucher.Party, -value, {}}};
    if (i < 6) voucher.ClearedLater = start.AddDays(i);
    carry.Open.push_back(std::move(voucher));
  }
  return carry;
}

}  // namespace

void MakeSampleFirm(const std::filesystem::path& folder, const SampleOptions& options) {
  std::vector<int> years = options.Years;
  std::sort(years.begin(), years.end());
  years.erase(std::unique(years.begin(), years.end()), years.end());
  if (years.empty()) throw HostError("A firm needs at least one year");
  const int before = years.front() - 1;
  if (options.HasYearBefore) years.insert(years.begin(), before);
  CreateFirm(folder, kFirm, years);
  if (options.IsEmpty) return;
  auto firm = Firm::Open(folder, {.WaitsForDisk = false});
  FillCommon(*firm->Common());
  SampleRandom random(options.Seed);
  const SampleMasters masters(random);
  SampleCarry carry = FirstCarry(masters, random, Date::Of(before + 1, 4, 1));
  for (const int start : years) {
    const FirmYear& year = firm->OpenYear(start);
    if (start == before) {
      SampleHistory(*year.Db, masters, options.Seed, year.StartDate, year.EndDate).Write(carry);
      continue;
    }
    SampleYear(*year.Db, masters, random, year.StartDate, year.EndDate)
        .Write(carry, options, start == years.back());
    Schema::RefreshStatistics(*year.Db);
  }
  // Opened once more it reaches the disk.
  firm.reset();
  firm = Firm::Open(folder);
  for (const int start : years) firm->OpenYear(start);
}

}  // namespace quillon
