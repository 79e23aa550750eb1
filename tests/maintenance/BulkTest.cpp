#include "tests/maintenance/BulkTest.h"

#include "books/SqlText.h"
#include "host/values/Text.h"

namespace quillon {

void BulkTest::SetUp() {
  OpenNewFirm();
  AddAccount(1, "Cash", 46);
  AddAccount(101, "Sahyadri Bank", 47);
  AddAccount(201, "Asha Traders", 140, "Surat");
  AddAccount(202, "Bharat Mills", 140, "Pune");
}

void BulkTest::Enter(int voucher, const std::string& day, const std::string& book, const std::string& type,
                     std::initializer_list<Line> lines, CDbLink* year) {
  CDbLink& db = year != nullptr ? *year : Db();
  const std::string id = std::to_string(voucher);
  db.Execute("insert into FANar (NarrationID,Narration) values (" + id + ",'Note " + id + "')");
  int number = 0;
  for (const Line& line : lines) {
    db.Execute(
        "insert into FAData (VoucherID,dVchSubNo,dVchNo,dVchDate,dcd,dcd2,dAmt,dBook,dTrnType,dLocked,NarrationID) "
        "values (" +
        id + "," + std::to_string(++number) + ",'" + id + "','" + day + "'," + std::to_string(line.account) +
        "," + std::to_string(line.other) + "," + line.amount + ",'" + book + "','" + type + "'," +
        (line.locked ? "1" : "0") + "," + id + ")");
  }
}

void BulkTest::AddDocument(int voucher, int party, const std::string& series, bool locked) {
  const std::string id = std::to_string(voucher);
  Db().Execute("insert into DocMain (DocumentID,DocVoucherID,DocSeries,PartyCode,dLocked) values (9" + id +
               "," + id + ",'" + series + "'," + std::to_string(party) + "," + (locked ? "1" : "0") + ")");
  Db().Execute("insert into DocData (DocumentID,CustomerID) values (9" + id + "," + std::to_string(party) +
               ")");
  Db().Execute("insert into RefMaster (RefCode,VoucherID) values (" + std::to_string(party) + "," + id + ")");
  Db().Execute("insert into FADocs (VoucherID,PartyCode) values (" + id + "," + std::to_string(party) + ")");
}

void BulkTest::Refuse(const std::string& when, const std::string& rows, CDbLink* year) {
  CDbLink& db = year != nullptr ? *year : Db();
  db.Execute("create exception Refused 'Not these rows'");
  db.Execute("create trigger Refusing for FAData " + when + " as begin if (" + rows +
             ") then exception Refused; end");
}

BulkTest::Texts BulkTest::Rows(const std::string& query, CDbLink& db) {
  Texts rows;
  CDataSet set;
  for (set.Open(query, db); !set.Eof(); set.MoveNext()) {
    Texts fields;
    for (std::size_t i = 0; i < set.FieldNames().size(); ++i) fields.push_back(set.Field(i).ToText());
    rows.push_back(text::Join(fields, "|"));
  }
  return rows;
}

BulkTest::Texts BulkTest::Balances(CDbLink& db) {
  return Rows("select dcd,sum(dAmt) from FAData where dTrnType<>'zzz' group by dcd order by dcd", db);
}

void BulkTest::Open(const std::string& tool, int account, const Acts& acts) {
  if (!statement_ || !statement_->IsShownToUser()) statement_ = ShowStatement(account);
  Statements();
  Acts all = {[this, tool] { runtime_.PickFromMenu(tool); }};
  for (const auto& act : acts) {
    all.emplace_back([this, act] {
      dialog_ = runtime_.ActiveForm();
      act();
    });
  }
  During([this] { Key(*statement_, keys::kF7); }, all);
}

void BulkTest::Type(const std::string& field, const std::string& text) {
  At<CTextPlus>(dialog_, field).UserType(text);
}

void BulkTest::PressOk() { Key(*dialog_, keys::kF7); }

}  // namespace quillon
