#include "desk/services/VoucherStore.h"

#include <algorithm>

#include "books/SqlText.h"
#include "host/data/CDataSet.h"
#include "host/data/TransactionScope.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

/// So often is a voucher stored anew while other desks store theirs; each try waits for them.
constexpr int kTries = 50;
constexpr const char* kUniqueViolation = "23000";

/// Whether another desk's voucher came between: what was begun is undone and may be begun anew.
bool CameBetween(const DbError& error) {
  return error.Why() == DbError::Reason::kConflict || error.SqlState() == kUniqueViolation;
}

void CheckLine(const NewVoucher& voucher, const VoucherLine& line) {
  if (voucher.Day.IsEmpty()) throw HostError("The voucher has no date");
  if (line.Account == 0) throw HostError("A line of the voucher has no account");
  if (line.Value.IsZero()) throw HostError("A line of the voucher has no amount");
}

void CheckWhole(const NewVoucher& voucher) {
  if (voucher.Lines.size() < 2) throw HostError("A voucher has at least two lines");
  Amount sum;
  for (const VoucherLine& line : voucher.Lines) {
    CheckLine(voucher, line);
    sum += line.Value;
  }
  if (!sum.IsZero())
    throw HostError("The debits and credits of the voucher differ by " + sum.Abs().ToString());
}

/// The account that names the other side of an amount: the largest line of the other sign. 0 when there is
/// none.
std::int64_t OtherSideOf(Amount value, const std::vector<StoredLine>& lines) {
  const StoredLine* other = nullptr;
  for (const StoredLine& one : lines) {
    const bool opposite = (one.Value < Amount()) != (value < Amount());
    if (opposite && (other == nullptr || one.Value.Abs() > other->Value.Abs())) other = &one;
  }
  return other != nullptr ? other->Account : 0;
}

}  // namespace

/// A transaction of the caller is the caller's to begin anew.
template <class Work>
void VoucherStore::DoWhole(Work work) {
  const bool isOwn = !year_.InTransaction();
  for (int tries = 1;; ++tries) {
    try {
      TransactionScope whole(year_);
      work();
      whole.Commit();
      return;
    } catch (const DbError& error) {
      if (!isOwn || tries == kTries || !CameBetween(error)) throw;
    }
  }
}

std::int64_t VoucherStore::Store(const NewVoucher& voucher) {
  CheckWhole(voucher);
  std::int64_t id = 0;
  DoWhole([&] {
    Kept kept;
    const Common common = NewCommon(voucher, kept.Serial);
    int number = 0;
    for (const VoucherLine& line : voucher.Lines) {
      WriteLine(common, voucher, line, ++number, kept);
      ++kept.Serial;
    }
    NameOtherSides(common.Id);
    WriteDocument(common.Id, voucher);
    UseLeaf(common, voucher);
    id = ValInteger(common.Id);
  });
  return id;
}

void VoucherStore::Replace(const StoredVoucher& before, const NewVoucher& voucher) {
  CheckWhole(voucher);
  DoWhole([&] {
    RequireUnchanged(before);
    const std::string id = books::SqlNumber(before.Id);
    const bool isRenamed = voucher.Narration != before.Narration;
    const Common common{
        id, books::SqlString(voucher.Number.empty() ? before.Number : voucher.Number),
        isRenamed ? StoreNarration(voucher.Narration) : books::SqlNumber(before.Lines.front().NarrationId)};
    FreeLeaves(id);
    year_.Execute("delete from FAData where VoucherID=" + id);
    WriteAgain(before, voucher, common);
    NameOtherSides(id);
    WriteDocument(id, voucher);
    UseLeaf(common, voucher);
    if (isRenamed) DropNarrations(before);
  });
}

void VoucherStore::Delete(const StoredVoucher& before) {
  DoWhole([&] {
    RequireUnchanged(before);
    const std::string id = books::SqlNumber(before.Id);
    FreeLeaves(id);
    const std::string documents = "DocMain where DocVoucherID=" + id;
    for (const std::string& rows : {"DocData where DocumentID in (Select DocumentID from " + documents + ")",
                                    documents, "RefMaster where VoucherID=" + id,
                                    "FADocs where VoucherID=" + id, "FAData where VoucherID=" + id}) {
      year_.Execute("delete from " + rows);
    }
    DropNarrations(before);
  });
}

std::int64_t VoucherStore::Begin(const NewVoucher& voucher, int line) {
  CheckLine(voucher, voucher.Lines.at(0));
  TransactionScope work(year_);
  Kept kept;
  const Common common = NewCommon(voucher, kept.Serial);
  WriteLine(common, voucher, voucher.Lines.front(), line, kept);
  work.Commit();
  return ValInteger(common.Id);
}

void VoucherStore::AddLine(std::int64_t id, const NewVoucher& voucher, int line) {
  CheckLine(voucher, voucher.Lines.at(0));
  TransactionScope work(year_);
  CDataSet known;
  known.Open("Select First 1 dVchNo,NarrationID from FAData where VoucherID=" + books::SqlNumber(id) +
                 " order by dVchSubNo",
             year_);
  if (known.Eof()) throw HostError("There is no voucher " + std::to_string(id) + " to post to");
  const Common common{books::SqlNumber(id), books::SqlString(known.Field("dVchNo").ToText()),
                      books::SqlNumber(known.Field("NarrationID").ToInteger())};
  WriteLine(common, voucher, voucher.Lines.front(), line, {NextSerial(voucher.Day), {}});
  NameOtherSides(common.Id);
  work.Commit();
}

// --- Ids and numbers

/// Id and number come of one look at the entries: two desks that take the same id meet at the key of the
/// entries, and whoever comes second begins anew and then sees the number that the first one gave. Numbers
/// are texts, so that the longest of the greatest counts.
VoucherStore::Next VoucherStore::FindNext(const std::string& type, Date day) {
  const std::string isNumber = "case when dTrnType=" + books::SqlString(type) +
                               " and char_length(dVchNo)<10 and dVchNo similar to '[0-9]+' then ";
  CDataSet last;
  last.Open("Select Max(VoucherID) as Id,Max(case when dVchDate=" + books::SqlDateOrNull(day) +
                " then dSrNo end) as Serial,Max(" + isNumber +
                "cast(dVchNo as integer) end) as Greatest,Max(" + isNumber +
                "char_length(dVchNo) end) as Width from FAData",
            year_);
  Next next;
  next.Id = last.Field("Id").ToInteger() + 1;
  next.Serial = last.Field("Serial").ToInteger() + 1;
  next.Number = std::to_string(last.Field("Greatest").ToInteger() + 1);
  const auto width = static_cast<std::size_t>(last.Field("Width").ToInteger());
  if (next.Number.size() < width) next.Number.insert(0, width - next.Number.size(), '0');
  return next;
}

VoucherStore::Common VoucherStore::NewCommon(const NewVoucher& voucher, std::int64_t& serial) {
  const Next next = FindNext(voucher.Type, voucher.Day);
  serial = next.Serial;
  RequireFree(voucher);
  return {books::SqlNumber(next.Id), books::SqlString(voucher.Number.empty() ? next.Number : voucher.Number),
          StoreNarration(voucher.Narration)};
}

void VoucherStore::RequireFree(const NewVoucher& voucher) {
  if (voucher.Number.empty() || !voucher.IsNumberOwn) return;
  if (!year_.RowExists("Select first 1 VoucherID from FAData where dTrnType=" +
                       books::SqlString(voucher.Type) + " and dVchNo=" + books::SqlString(voucher.Number)))
    return;
  throw VoucherRefused(VoucherRefused::Cause::kNumber,
                       "The number " + voucher.Number + " is given to another voucher already.");
}

std::int64_t VoucherStore::NextSerial(Date day) {
  return year_.Lookup("FAData", "Max(dSrNo)", "dVchDate=" + books::SqlDate(day)).ToInteger() + 1;
}

std::string VoucherStore::NextNumber(const std::string& type) { return FindNext(type, Date()).Number; }

// --- Lines

void VoucherStore::WriteLine(const Common& common, const NewVoucher& voucher, const VoucherLine& line,
                             int number, const Kept& kept) {
  year_.Execute(
      "insert into FAData (VoucherID,dVchSubNo,dSrNo,dVchNo,dVchDate,dcd,dAmt,dBook,dTrnType,dTrnNature,"
      "dBankDate,dLocked,NarrationID) values (" +
      common.Id + "," + std::to_string(number) + "," + books::SqlNumber(kept.Serial) + "," + common.Number +
      "," + books::SqlDate(voucher.Day) + "," + books::SqlNumber(line.Account) + "," + line.Value.ToString() +
      "," + books::SqlString(voucher.Book) + "," + books::SqlString(voucher.Type) + "," +
      std::to_string(voucher.Nature) + "," + books::SqlDateOrNull(kept.Cleared) + ",0," + common.Narration +
      ")");
}

/// A line of the same account and amount as before is the same entry at the bank; on the same day the lines
/// keep their places among the day's entries.
void VoucherStore::WriteAgain(const StoredVoucher& before, const NewVoucher& voucher, const Common& common) {
  std::vector<StoredLine> left = before.Lines;
  const bool keepsPlace = voucher.Day == before.Day;
  const bool isMore = !keepsPlace || voucher.Lines.size() > before.Lines.size();
  std::int64_t next = isMore ? NextSerial(voucher.Day) : 0;
  for (std::size_t at = 0; at < voucher.Lines.size(); ++at) {
    const VoucherLine& line = voucher.Lines[at];
    Common own = common;
    Kept kept;
    kept.Serial = keepsPlace && at < before.Lines.size() ? before.Lines[at].Serial : next++;
    const auto same = std::find_if(left.begin(), left.end(), [&](const StoredLine& old) {
      return old.Account == line.Account && old.Value == line.Value;
    });
    if (same != left.end()) {
      kept.Cleared = same->Cleared;
      if (voucher.Narration == before.Narration) own.Narration = books::SqlNumber(same->NarrationId);
      left.erase(same);
    }
    WriteLine(own, voucher, line, static_cast<int>(at) + 1, kept);
  }
}

void VoucherStore::NameOtherSides(const std::string& id) {
  const std::optional<StoredVoucher> voucher = StoredVoucher::Read(year_, ValInteger(id));
  for (const StoredLine& line : voucher->Lines) {
    const std::int64_t other = OtherSideOf(line.Value, voucher->Lines);
    if (other == 0) continue;
    year_.Execute("update FAData set dcd2=" + books::SqlNumber(other) + " where VoucherID=" + id +
                  " and dVchSubNo=" + std::to_string(line.Number));
  }
}

/// Holds the lines until the end of the transaction, so that nobody changes them in between.
void VoucherStore::RequireUnchanged(const StoredVoucher& before) {
  year_.Execute("update FAData set dLocked=dLocked where VoucherID=" + books::SqlNumber(before.Id));
  if (StoredVoucher::Read(year_, before.Id) == before) return;
  throw VoucherRefused(
      VoucherRefused::Cause::kChanged,
      "This voucher was changed or deleted meanwhile. Nothing was stored; look at it again.");
}

// --- What goes with a voucher

/// Rows that tell of a returned cheque stay, whoever the party is.
void VoucherStore::WriteDocument(const std::string& id, const NewVoucher& voucher) {
  const std::string party = books::SqlNumber(voucher.Party);
  const std::string transporter = voucher.TakesTransporter ? "m.mTransportCode" : "cast(null as integer)";
  if (voucher.Party == 0) {
    year_.Execute("delete from FADocs where VoucherID=" + id + " and ChqReturn is distinct from 'Y'");
  } else if (!year_.RowExists("Select first 1 DocsID from FADocs where VoucherID=" + id)) {
    year_.Execute("insert into FADocs (VoucherID,ChqReturn,PartyCode,TransportCode,AgentCode) select " + id +
                  ",'N',m.mcd," + transporter + ",m.mAgentCode from FAMaster m where m.mcd=" + party);
  } else {
    year_.Execute("update FADocs set PartyCode=" + party +
                  ",AgentCode=(select m.mAgentCode from FAMaster m " + "where m.mcd=" + party +
                  "),TransportCode=(select " + transporter + " from FAMaster m where m.mcd=" + party +
                  ") where VoucherID=" + id + " and PartyCode is distinct from " + party);
  }
}

void VoucherStore::UseLeaf(const Common& common, const NewVoucher& voucher) {
  if (voucher.LeafNumber == 0) return;
  Amount paid;
  std::vector<StoredLine> lines;
  for (const VoucherLine& line : voucher.Lines) {
    StoredLine& stored = lines.emplace_back();
    stored.Account = line.Account;
    stored.Value = line.Value;
    if (line.Account == voucher.LeafBank) paid -= line.Value;
  }
  const std::int64_t party = OtherSideOf(-paid, lines);
  std::int64_t rows = 0;
  year_.Execute("update ChqLeaves set VoucherID=" + common.Id + ",IsuDate=" + books::SqlDate(voucher.Day) +
                    ",PartyCode=" + books::SqlNumber(party) + ",NarrationID=" + common.Narration +
                    ",Amount=" + paid.ToString() + " where BankCode=" + books::SqlNumber(voucher.LeafBank) +
                    " and ChqNo=" + books::SqlNumber(voucher.LeafNumber) +
                    " and VoucherID is null and Cancelled is distinct from 'Y' and not exists (select 1 from "
                    "ChqGoingOut g where g.LeafID=ChqLeaves.ID)",
                rows, CDbLink::kNoRows);
  if (rows == 1) return;
  throw VoucherRefused(VoucherRefused::Cause::kLeaf, "Cheque leaf " + books::SqlNumber(voucher.LeafNumber) +
                                                         " is not there to be used, or was used meanwhile.");
}

void VoucherStore::FreeLeaves(const std::string& id) {
  year_.Execute(
      "update ChqLeaves set VoucherID=null,IsuDate=null,PartyCode=null,NarrationID=null,Amount=null "
      "where VoucherID=" +
      id);
}

std::string VoucherStore::StoreNarration(const std::string& narration) {
  const std::int64_t id = year_.Lookup("FANar", "Max(NarrationID)", "").ToInteger() + 1;
  year_.Execute("insert into FANar (NarrationID,Narration) values (" + books::SqlNumber(id) + "," +
                books::SqlString(narration) + ")");
  return books::SqlNumber(id);
}

/// Several vouchers may share a narration.
void VoucherStore::DropNarrations(const StoredVoucher& before) {
  std::vector<std::int64_t> ids;
  for (const StoredLine& line : before.Lines) ids.push_back(line.NarrationId);
  std::sort(ids.begin(), ids.end());
  ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
  for (const std::int64_t id : ids) {
    const std::string key = "NarrationID=" + books::SqlNumber(id);
    if (!year_.RowExists("Select first 1 VoucherID from FAData where " + key) &&
        !year_.RowExists("Select first 1 ID from ChqLeaves where " + key)) {
      year_.Execute("delete from FANar where " + key);
    }
  }
}

}  // namespace quillon
