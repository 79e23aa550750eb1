#include <thread>

#include "desk/firm/Firm.h"
#include "tests/support/DeskFixture.h"
#include "tests/support/FirebirdServer.h"

namespace quillon {
namespace {

/// A firm on a private server, with the workbench open on its bank.
class OnAServer : public DeskTest {
 protected:
  void SetUp() override {
    if (!FirebirdServer::IsInstalled()) GTEST_SKIP() << "the Firebird server is not installed";
    server_ = std::make_unique<FirebirdServer>();
    FirebirdAddress place = server_->Address("common.fdb");
    place.Database.resize(place.Database.size() - std::string("/common.fdb").size());
    FirmDetails details;
    details.FirmName = "Shared";
    firm_ = (folder_.Path() / "firm").string();
    CreateFirm(firm_, details, {2024}, place);
    desk_.OpenFirm(firm_);
    Db().BeginTrans();
    AddAccount(101, "Sahyadri Bank", 47);
    AddAccount(201, "Asha Traders");
    for (int id = 2; id <= 6; ++id) AddVoucher({.id = id, .date = "2024-04-10", .amount = "100"});
    Db().CommitTrans();
    bench_ = ShowWorkbench(ShowStatement());
  }
  void TearDown() override {
    desk_.CloseFirm();
    server_.reset();
  }

  CGridPlus& Grid() { return At<CGridPlus>(bench_, "Grid"); }
  std::unique_ptr<FirebirdServer> server_;
  std::string firm_;
  FormPtr bench_;
};

TEST_F(OnAServer, GoneInTheMiddleOfAnEditAndBackAgain) {
  EXPECT_TRUE(EditCell(Grid(), 1, 27, "11"));
  TypeInCell(Grid(), 2, 27, "12");
  server_->Stop();
  for (int attempt = 0; attempt < 2; ++attempt) {
    Key(*bench_, keys::kEnter);
    EXPECT_EQ(Errors().size(), 1U);
    EXPECT_TRUE(Grid().EditMode());
    EXPECT_EQ(Grid().EditRow(), 2);
    EXPECT_EQ(Grid().EditBox.Text(), "12") << "what was typed stands in the editor as it was typed";
    EXPECT_EQ(Grid().TextMatrix(2, 27), "");
    EXPECT_EQ(At<CGridPlus>(bench_->CallingForm, "Grid").TextMatrix(2, 4), "");
  }
  server_->Start();
  Key(*bench_, keys::kEnter);
  EXPECT_EQ(Stored(2), "11-Apr-2024");
  EXPECT_EQ(Stored(3), "12-Apr-2024");
  EXPECT_EQ(Grid().Footer.TextMatrix(1, 24), "200.00");
  EXPECT_EQ(Grid().EditRow(), 3) << "the work goes on in the next row";
}

TEST_F(OnAServer, ALockOfAnotherDeskIsToldAndTheDateStaysInTheEditor) {
  const std::unique_ptr<Firm> other = Firm::Open(firm_);
  CDbLink& theirs = *other->OpenYear(2024).Db;
  theirs.BeginTrans();
  theirs.Execute("Update FAData set dBankDate='2024-04-20' where VoucherID=4 and dVchSubNo=1");
  EXPECT_FALSE(EditCell(Grid(), 3, 27, "13"));
  EXPECT_EQ(Events("waiting").size(), 2U) << "a sign that it waits, and its end";
  EXPECT_EQ(Errors(), Texts{"The entry of 10-Apr-2024, voucher no. 4, was not stored. "
                            "Another user is changing the same record just now."});
  EXPECT_EQ(Grid().EditBox.Text(), "13");
  EXPECT_EQ(Grid().TextMatrix(3, 27), "");
  theirs.CommitTrans();
  Key(*bench_, keys::kEnter);
  EXPECT_EQ(Stored(4), "13-Apr-2024") << "free again, the same edit is stored";
}

TEST_F(OnAServer, TwoDesksReconcileOneFirm) {
  const std::unique_ptr<Firm> other = Firm::Open(firm_);
  CDbLink& theirs = *other->OpenYear(2024).Db;
  for (int row = 1; row <= 4; ++row) {
    EXPECT_TRUE(EditCell(Grid(), row, 27, "15"));
    const std::string id = std::to_string(row + 1);
    EXPECT_EQ(theirs.Lookup("FAData", "dBankDate", "VoucherID=" + id + " and dVchSubNo=1").ToDate().Text(),
              "15-Apr-2024");
    theirs.Execute("Update FAData set dBankDate='2024-06-01' where VoucherID=" + id + " and dVchSubNo=1");
  }
  AnswerDate("30-Apr-2024");
  Do([&] { At<CButtonBar>(bench_, "BtnBar1").UserPress("Statement"); });
  const CGridPlus& view = At<CGridPlus>(bench_, "GridStatement");
  EXPECT_EQ(view.TextMatrix(view.Rows - 2, 5), "500.00 Cr.") << "the statement reads what the others stored";
  EXPECT_EQ(view.TextMatrix(3, 6), "01-Jun-2024");
}

}  // namespace
}  // namespace quillon
