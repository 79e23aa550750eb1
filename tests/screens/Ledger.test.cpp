#include "host/values/Text.h"
#include "tests/support/DeskFixture.h"
#include "tests/support/PdfReader.h"

namespace quillon {
namespace {

/// The ledger and its index.
class Ledger : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    Db().BeginTrans();
    AddAccount(101, "Sahyadri Bank", 47, "Pune");
    AddAccount(201, "Asha Traders", 140);
    AddAccount(202, "Asha Traders", 140, "Surat");
    AddAccount(203, "Idle", 140);
    AddVoucher({.id = 1, .date = "2024-04-01", .amount = "-1000", .book = "0B", .other = 202});
    for (int id = 2; id < 120; ++id)
      AddVoucher({.id = id, .date = "2024-06-20", .amount = "15.5", .narration = "Note"});
    AddVoucher({.id = 900, .date = "2024-06-21", .amount = "7", .book = "MEM"});
    Db().CommitTrans();
  }

  FormPtr Show(const Acts& acts) {
    const FormPtr ledger = gApp->GetForm("Ledger");
    During([&] { gApp->ShowForm(ledger); }, acts);
    return ledger;
  }
  Acts All() {
    return {[this] { Key(*runtime_.ActiveForm(), keys::kF7); }};
  }
  static Texts Rows(const FormPtr& form, int from, int to) {
    const Texts all = RowTexts(At<CGridPlus>(form, "Grid"), {1, 5, 6, 7, 8});
    return {all.begin() + from, all.begin() + to};
  }
};

TEST_F(Ledger, EveryAccountStandsBehindTheOtherWithItsPagesInTheIndex) {
  const FormPtr ledger = Show(All());
  const auto& grid = At<CGridPlus>(ledger, "Grid");
  EXPECT_EQ(Rows(ledger, 0, 2), (Texts{"201|Asha Traders|||", "201|Note||15.50|15.50 Cr."}));
  EXPECT_EQ(Rows(ledger, 119, 124),
            (Texts{"201|Totals|0.00|1,829.00|1,829.00 Cr.", "202|Asha Traders, Surat|||",
                   "202|Opening Balance|1,000.00||1,000.00 Dr.", "202|Totals|1,000.00|0.00|1,000.00 Dr.",
                   "101|Sahyadri Bank, Pune|||"}));
  EXPECT_EQ(Rows(ledger, grid.Rows - 2, grid.Rows - 1), Texts{"101|Totals|1,829.00|1,000.00|829.00 Dr."});
  Key(*ledger, keys::kF5);
  const FormPtr index = runtime_.ActiveForm();
  ASSERT_EQ(index->Name(), "frmLedgerIndex");
  const auto& pages = At<MSHFlexGrid>(index, "Grid");
  const Texts told = RowTexts(pages, {1, 2, 3, 5, 6});
  Key(*index, keys::kEscape);
  Key(*ledger, keys::kF8);
  const Json report = One("report");
  ASSERT_GT(report["pages"].get<int>(), 3);
  const PdfReader paper(report["file"].get<std::string>());
  int first = 0;
  int last = 0;
  for (int page = 1; page <= report["pages"].get<int>(); ++page) {
    const std::string text = paper.Text(page);
    if (text.find("Asha Traders, Surat") != std::string::npos) first = page;
    if (text.find("829.00 Dr.") != std::string::npos) last = page;
  }
  const std::string middle = std::to_string(first) + "-" + std::to_string(first);
  EXPECT_EQ(told,
            (Texts{"Asha Traders||1-" + std::to_string(first) + "||1,829.00",
                   "Asha Traders|Surat|" + middle + "|1,000.00|",
                   "Sahyadri Bank|Pune|" + std::to_string(first) + "-" + std::to_string(last) + "|829.00|"}));
}

TEST_F(Ledger, TwoLedgersOfOneDeskAreNotMixed) {
  const FormPtr all = Show(All());
  const FormPtr one = Show({[this] {
    const FormPtr filter = runtime_.ActiveForm();
    At<CommandButton>(filter, "cmdUnCheck").UserClick();
    At<ListBox>(filter, "lstAccounts").UserCheck(3, true);
    Key(*filter, keys::kF7);
  }});
  EXPECT_EQ(At<CGridPlus>(one, "Grid").Title(), "Accounts: Sahyadri Bank, Pune");
  const auto listed = [&](const FormPtr& ledger) {
    Do([&] { gRuntime->BringToFront(*ledger); });
    Key(*ledger, keys::kF5);
    const FormPtr index = runtime_.ActiveForm();
    const Texts heads = RowTexts(At<MSHFlexGrid>(index, "Grid"), {7});
    Key(*index, keys::kEscape);
    return text::Join(heads, " ");
  };
  EXPECT_EQ(listed(all), "201 202 101");
  EXPECT_EQ(listed(one), "101");
  EXPECT_EQ(listed(all), "201 202 101");
  const auto left = [this] { return Db().Lookup("LedgerPages", "Count(*)", "").ToInteger(); };
  EXPECT_EQ(left(), 4);
  Do([&] { gRuntime->Unload(*all); });
  EXPECT_EQ(left(), 1);
  Do([&] { gRuntime->Unload(*one); });
  EXPECT_EQ(left(), 0);
  const FormPtr none = Show({[this] { Key(*runtime_.ActiveForm(), keys::kEscape); }});
  EXPECT_FALSE(none->IsLoaded());
}

}  // namespace
}  // namespace quillon
