#include "desk/screens/OutgoingLeaves.h"

#include "books/SqlText.h"
#include "desk/firm/ProgramMark.h"
#include "desk/screens/BankPayments.h"
#include "host/data/CDataSet.h"
#include "host/data/TransactionScope.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr std::size_t kLeastDigits = 6;
constexpr std::size_t kLongestNarration = 250;
constexpr const char* kFree = " and VoucherID is null and (Cancelled is null or Cancelled<>'Y')";

std::string SqlText(const Variant& number) {
  return number.IsNull() || number.IsEmpty() ? "null" : books::SqlNumber(number.ToInteger());
}

void TellOfNoRoom(std::string narration, std::int64_t number) {
  std::string known;
  gStd->ChqNoFromNarration(narration, known);
  if (known.empty())
    gRuntime->Say("The narration has no room for the number of cheque " + LeafText(number) + ".");
}

}  // namespace

std::string NarrationWithCheque(const std::string& narration, std::int64_t number) {
  std::string rest = narration;
  std::string known;
  gStd->ChqNoFromNarration(rest, known);
  if (!known.empty()) return narration;
  const std::size_t payee = std::min(narration.find("::"), narration.size());
  std::string text = narration.substr(0, payee);
  if (!text.empty() && text.back() != ' ') text += " ";
  text += "Chq.No. " + LeafText(number) + narration.substr(payee);
  return text::Length(text) > kLongestNarration ? narration : text;
}

std::string LeafText(std::int64_t number) {
  const std::string digits = std::to_string(number);
  return digits.size() < kLeastDigits ? std::string(kLeastDigits - digits.size(), '0') + digits : digits;
}

std::string OutgoingLeaves::WhyNot(std::int64_t bank, std::int64_t number) const {
  const std::string name = "Cheque leaf " + LeafText(number);
  CDataSet leaf;
  leaf.Open(
      "Select l.VoucherID,l.Cancelled,g.LeafID from ChqLeaves l left join ChqGoingOut g on "
      "g.LeafID=l.ID where l.BankCode=" +
          books::SqlNumber(bank) + " and l.ChqNo=" + books::SqlNumber(number),
      year_);
  if (leaf.Eof()) return name + " is not among the leaves of this bank.";
  if (!leaf.Field("VoucherID").IsNull()) return name + " is used by a voucher.";
  if (leaf.Field("Cancelled").ToText() == "Y") return name + " is cancelled.";
  if (!leaf.Field("LeafID").IsNull()) return name + " is on its way to a printer.";
  return {};
}

OutgoingLeaf OutgoingLeaves::Send(std::int64_t bank, std::int64_t number, std::int64_t voucher) {
  OutgoingLeaf sent{0, bank, number, voucher, ""};
  sent.Leaf =
      year_
          .Lookup("ChqLeaves", "ID",
                  "BankCode=" + books::SqlNumber(bank) + " and ChqNo=" + books::SqlNumber(number) + kFree)
          .ToInteger();
  year_.Execute("insert into ChqGoingOut (LeafID,VoucherID,Program) values (" + books::SqlNumber(sent.Leaf) +
                "," + books::SqlNumber(voucher) + "," + books::SqlString(OwnProgramMark()) + ")");
  return sent;
}

void OutgoingLeaves::NoteJob(OutgoingLeaf& sent, const std::string& job) {
  sent.Job = job;
  if (job.empty()) return;
  year_.Execute("update ChqGoingOut set JobName=" + books::SqlString(job) +
                " where LeafID=" + books::SqlNumber(sent.Leaf));
}

void OutgoingLeaves::Free(const OutgoingLeaf& sent) {
  year_.Execute("delete from ChqGoingOut where LeafID=" + books::SqlNumber(sent.Leaf));
}

/// Several vouchers may share a narration, so that the number goes into a row of the voucher's own.
Variant OutgoingLeaves::NumberNarration(const BankPayment& payment, Issue& issue) {
  const std::string narration = NarrationWithCheque(payment.Narration, issue.Sent.Number);
  if (narration == payment.Narration) {
    TellOfNoRoom(narration, issue.Sent.Number);
    return payment.NarrationID;
  }
  issue.NarrationOwn = year_.Lookup("FANar", "Max(NarrationID)", "").ToInteger() + 1;
  const std::string own = books::SqlNumber(issue.NarrationOwn);
  year_.Execute("insert into FANar (NarrationID,Narration) values (" + own + "," +
                books::SqlString(narration) + ")");
  year_.Execute("update FAData set NarrationID=" + own +
                " where VoucherID=" + books::SqlNumber(payment.Voucher) +
                " and NarrationID is not distinct from " + SqlText(payment.NarrationID));
  return issue.NarrationOwn;
}

std::optional<OutgoingLeaves::Issue> OutgoingLeaves::Record(const OutgoingLeaf& sent) {
  const std::string leaf = "ID=" + books::SqlNumber(sent.Leaf) + kFree;
  TransactionScope work(year_);
  const std::optional<BankPayment> payment = BankPayment::Of(year_, sent.Bank, sent.Voucher);
  if (!payment) {
    Free(sent);
    year_.Execute("update ChqLeaves set Cancelled='Y' where " + leaf);
    work.Commit();
    gStd->MsgBox("The voucher of cheque " + LeafText(sent.Number) + " is gone. Its leaf is cancelled.", "",
                 "W");
    return std::nullopt;
  }
  Issue issue{sent, payment->NarrationID, 0};
  const Variant narration = NumberNarration(*payment, issue);
  std::int64_t rows = 0;
  year_.Execute("update ChqLeaves set VoucherID=" + books::SqlNumber(sent.Voucher) +
                    ",IsuDate=" + books::SqlDateOrNull(payment->Day) +
                    ",PartyCode=" + books::SqlNumber(payment->Party) + ",NarrationID=" + SqlText(narration) +
                    ",Amount=" + payment->Value.ToString() + " where " + leaf,
                rows, CDbLink::kNoRows);
  if (rows != 1) {
    throw HostError("Cheque " + LeafText(sent.Number) +
                    " is printed, but its leaf was used or cancelled meanwhile. Look into the leaves.");
  }
  Free(sent);
  work.Commit();
  return issue;
}

void OutgoingLeaves::Spoil(const Issue& issue) {
  TransactionScope work(year_);
  year_.Execute(
      "update ChqLeaves set Cancelled='Y',VoucherID=null,IsuDate=null,PartyCode=null,NarrationID=null,"
      "Amount=null where ID=" +
      books::SqlNumber(issue.Sent.Leaf));
  if (issue.NarrationOwn != 0) {
    const std::string own = books::SqlNumber(issue.NarrationOwn);
    year_.Execute("update FAData set NarrationID=" + SqlText(issue.NarrationBefore) +
                  " where NarrationID=" + own);
    year_.Execute("delete from FANar where NarrationID=" + own);
  }
  work.Commit();
}

void OutgoingLeaves::Ask(const OutgoingLeaf& sent, std::optional<Issue>& issue) {
  enum Button { kYes = 1, kNo, kLater };
  const int button = gRuntime->AskMessage(
      {"Was cheque " + LeafText(sent.Number) + " printed?", "Q", {"Yes", "No", "Later"}, "Quillon", kLater});
  if (button == kYes) {
    issue = Record(sent);
  } else if (button == kNo) {
    gRuntime->Printer().TakeBackJob(sent.Job);
    Free(sent);
  }
}

std::vector<OutgoingLeaf> OutgoingLeaves::Left() const {
  const std::string own = OwnProgramMark();
  std::vector<OutgoingLeaf> left;
  CDataSet rows;
  for (rows.Open(
           "Select g.LeafID,g.VoucherID,g.Program,g.JobName,l.BankCode,l.ChqNo from ChqGoingOut g inner join "
           "ChqLeaves l on l.ID=g.LeafID order by l.BankCode,l.ChqNo",
           year_);
       !rows.Eof(); rows.MoveNext()) {
    const std::string program = rows.Field("Program").ToText();
    if (program != own && IsAtWork(program)) continue;
    left.push_back({rows.Field("LeafID").ToInteger(), rows.Field("BankCode").ToInteger(),
                    rows.Field("ChqNo").ToInteger(), rows.Field("VoucherID").ToInteger(),
                    rows.Field("JobName").ToText()});
  }
  return left;
}

void OutgoingLeaves::AskAll() {
  std::optional<Issue> issue;
  for (const OutgoingLeaf& sent : Left()) Ask(sent, issue);
}

}  // namespace quillon
