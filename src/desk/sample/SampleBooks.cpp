#include "desk/sample/SampleBooks.h"

namespace quillon {

namespace {

constexpr const char* kLineInsert =
    "insert into FAData (VoucherID,dVchSubNo,dSrNo,dVchNo,dVchDate,dcd,dcd2,dAmt,dBook,dTrnType,dTrnNature,"
    "dBankDate,dLocked,NarrationID) values (?,?,?,?,?,?,?,?,?,?,?,?,?,?)";
constexpr const char* kNarrationInsert = "insert into FANar (NarrationID,Narration) values (?,?)";

Variant OrNull(int code) { return code == 0 ? Variant::Null() : Variant(code); }

/// The other side that a line names: the largest of the voucher's other lines.
int OtherSide(const SampleVoucher& voucher, std::size_t line) {
  int account = 0;
  Amount largest = Amount::OfUnits(-1);
  for (std::size_t i = 0; i < voucher.Lines.size(); ++i) {
    if (i == line || voucher.Lines[i].Value.Abs() <= largest) continue;
    largest = voucher.Lines[i].Value.Abs();
    account = voucher.Lines[i].Account;
  }
  return account;
}

}  // namespace

std::string SampleBooks::NextNumber(const std::string& type) {
  const std::string number = std::to_string(++numbers_[type]);
  return number.size() < 5 ? std::string(5 - number.size(), '0') + number : number;
}

int SampleBooks::Post(const SampleVoucher& voucher) {
  const int id = ++vouchers_;
  if (voucher.Day != day_) serial_ = 0;
  day_ = voucher.Day;
  PostLines(voucher, id);
  const Variant narration[] = {id, voucher.Narration};
  year_.ExecuteWith(kNarrationInsert, narration);
  PostDocuments(voucher, id);
  return id;
}

void SampleBooks::PostLines(const SampleVoucher& voucher, int id) {
  const std::string number = voucher.Number.empty() ? NextNumber(voucher.Type) : voucher.Number;
  for (std::size_t i = 0; i < voucher.Lines.size(); ++i) {
    PostLine(voucher, id, i, number);
    if (voucher.Book != "MEM") balances_[voucher.Lines[i].Account] += voucher.Lines[i].Value;
  }
}

void SampleBooks::PostLine(const SampleVoucher& voucher, int id, std::size_t index,
                           const std::string& number) {
  const SampleLine& line = voucher.Lines[index];
  const Variant values[] = {id,
                            static_cast<int>(index + 1),
                            ++serial_,
                            number,
                            voucher.Day,
                            OrNull(line.Account),
                            OrNull(OtherSide(voucher, index)),
                            line.Value,
                            voucher.Book,
                            voucher.Type,
                            voucher.Nature,
                            line.Cleared,
                            voucher.IsLocked ? 1 : 0,
                            id};
  year_.ExecuteWith(kLineInsert, values);
}

void SampleBooks::PostDocuments(const SampleVoucher& voucher, int id) {
  for (int i = 0; i < voucher.DocumentRows; ++i) {
    const Variant values[] = {id, voucher.IsReturned ? "Y" : "N", OrNull(voucher.Party),
                              OrNull(voucher.Transporter), OrNull(voucher.Agent)};
    year_.ExecuteWith(
        "insert into FADocs (VoucherID,ChqReturn,PartyCode,TransportCode,AgentCode) values (?,?,?,?,?)",
        values);
  }
  if (voucher.Series.empty()) return;
  const int document = ++documents_;
  const Variant party = OrNull(voucher.Party);
  const Variant main[] = {document,
                          id,
                          voucher.Series,
                          voucher.IsDocumentLocked ? 1 : 0,
                          party,
                          party,
                          OrNull(voucher.Transporter),
                          OrNull(voucher.Agent),
                          party,
                          Variant::Null()};
  year_.ExecuteWith(
      "insert into DocMain "
      "(DocumentID,DocVoucherID,DocSeries,dLocked,PartyCode,DebitCode,TransportCode,AgentCode,"
      "ConsigneeCode,ConsignorCode) values (?,?,?,?,?,?,?,?,?,?)",
      main);
  const Variant data[] = {document, party};
  year_.ExecuteWith("insert into DocData (DocumentID,CustomerID) values (?,?)", data);
  const Variant reference[] = {party, id};
  year_.ExecuteWith("insert into RefMaster (RefCode,VoucherID) values (?,?)", reference);
}

void SampleBooks::PostOpening(int account, Amount value, Date day) {
  if (value.IsZero()) return;
  SampleVoucher opening;
  opening.Day = day;
  opening.Book = opening.Type = "0B";
  opening.Narration = "Opening Balance";
  opening.Lines = {{account, value, {}}};
  Post(opening);
}

void SampleBooks::PostClosing(Date day) {
  SampleVoucher mark;
  mark.Day = day;
  mark.Book = "MEM";
  mark.Type = "zzz";
  mark.Narration = "Books closed";
  mark.Lines = {{0, Amount(), {}}};
  Post(mark);
}

}  // namespace quillon
