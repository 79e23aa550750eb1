#include "desk/services/DeskApp.h"
#include "desk/services/VoucherStore.h"
#include "host/data/CDataSet.h"
#include "host/services/StoredFields.h"
#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

using Texts = std::vector<std::string>;

/// What other screens ask of the host on real books: vouchers posted, work that an error left unfinished, the
/// filter of accounts, the sibling modules.
class HostWork : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    AddAccount(1, "Cash", 10);
    AddAccount(19, "Suspense", 12);
    AddAccount(101, "Sahyadri Bank", 47, "Pune");
    AddVoucher({.id = 7, .date = "2024-04-05", .amount = "1500", .other = 19});
  }

  void Post(std::string& voucher, int line, std::int64_t account, const std::string& amount) {
    CDataSet entries;
    entries.Open("Select First 1 * from FAData", Db());
    gApp->PostBalanceEntry(entries, voucher, "J", "J", line, Date::Of(2024, 4, 30), account, "Last Balance",
                           Amount::OfText(amount), true, true);
  }
  Texts Lines() {
    Texts lines;
    CDataSet set;
    for (set.Open(
             "Select a.VoucherID,a.dVchSubNo,a.dcd,a.dcd2,a.dAmt,a.dBook,a.dTrnType,a.dVchNo,n.Narration "
             "from FAData a join FANar n on a.NarrationID=n.NarrationID where a.dTrnType='J' order by 1,2",
             Db());
         !set.Eof(); set.MoveNext()) {
      std::string line;
      for (std::size_t i = 0; i < set.FieldNames().size(); ++i) line += set.Field(i).ToText() + "|";
      lines.push_back(line);
    }
    return lines;
  }
};

TEST_F(HostWork, AVoucherIsPostedLineByLine) {
  std::string voucher;
  Post(voucher, 1, 101, "250.5");
  EXPECT_EQ(voucher, "8");
  EXPECT_EQ(Lines(), Texts{"8|1|101||250.5|J|J|1|Last Balance|"}) << "it stands from the first line on";
  Post(voucher, 2, 777, "-50.5");
  EXPECT_EQ(Lines(),
            (Texts{"8|1|101|777|250.5|J|J|1|Last Balance|", "8|2|777|101|-50.5|J|J|1|Last Balance|"}))
      << "also on an account that the books do not have";
  Post(voucher, 3, 19, "-200");
  EXPECT_EQ(Lines()[0].substr(0, 11), "8|1|101|19|") << "the largest line of the other sign";
  EXPECT_EQ(Lines()[2].substr(0, 16), "8|3|19|101|-200|");
  std::string next;
  Post(next, 1, 1, "5");
  EXPECT_EQ(Lines()[3], "9|1|1||5|J|J|2|Last Balance|");
  std::string unknown = "77";
  EXPECT_THROW(Post(unknown, 1, 1, "5"), HostError);
  EXPECT_THROW(Post(next, 2, 1, "0"), HostError);
}

TEST_F(HostWork, AVoucherIsStoredWholeOrNotAtAll) {
  VoucherStore store(Db());
  NewVoucher voucher{
      Date::Of(2024, 4, 30), "J", "J", 0, "", "", {{1, Amount::OfText("5")}, {19, Amount::OfText("-4")}}};
  EXPECT_THROW(store.Store(voucher), HostError);
  voucher.Lines[1].Value = Amount::OfText("-5");
  Db().BeginTrans();
  store.Store(voucher);
  Db().RollbackTrans();
  EXPECT_EQ(Lines(), Texts()) << "undone with the transaction that it was a part of";
  store.Store(voucher);
  EXPECT_EQ(Lines(), (Texts{"8|1|1|19|5|J|J|1||", "8|2|19|1|-5|J|J|1||"}));
}

/// A screen that begins a transaction and fails in it.
class Careless : public Form {
 public:
  Careless() : Form("Careless", Origin::Desk) {}
  void OnKeyDown(KeyEvent& key) override {
    if (key.KeyCode == keys::kF7) {
      Db->BeginTrans();
      Db->Execute("update FAMaster set mst='Nashik' where mcd=101");
      if (Mends) {
        Db->RollbackTrans();
        throw HostError("Given up");
      }
      Db->Execute("update NoTable set x=1");
    }
    key.KeyCode = 0;
  }
  CDbLink* Db = nullptr;
  bool Mends = false;
};

TEST_F(HostWork, ATransactionThatAnErrorLeftOpenIsKeptOrUndone) {
  const auto screen = std::make_shared<Careless>();
  screen->Db = &Db();
  gRuntime->Show(screen);
  const auto station = [&] { return Db().Lookup("FAMaster", "mst", "mcd=101").ToText(); };
  const auto fail = [&] {
    Key(*screen, keys::kF7);
    EXPECT_EQ(Errors().size(), 1U);
    EXPECT_FALSE(Db().InTransaction());
  };
  AnswerMessage(2);
  fail();
  const std::vector<Json> asked = Events("message");
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0]["title"], "Unfinished work");
  EXPECT_EQ(asked[0]["buttons"], (Json{"Keep", "Undo"}));
  EXPECT_EQ(asked[0]["default"], 2);
  const std::string text = asked[0]["text"];
  EXPECT_TRUE(text.ends_with("What this step changed in the year 2024-25 is not yet kept.")) << text;
  EXPECT_EQ(station(), "Pune");
  AnswerMessage(1);
  fail();
  EXPECT_EQ(Messages().size(), 1U);
  EXPECT_EQ(station(), "Nashik");
  screen->Mends = true;
  fail();
  EXPECT_EQ(Messages(), Texts()) << "a screen that undoes it itself is not asked about";
  gRuntime->Unload(*screen);
}

TEST_F(HostWork, ASiblingNamesFilesAndAccountsAreFilteredByTicks) {
  const FormPtr names = gSession->Modules().Item("StoreworksModule")->GetForm("MainDB");
  const auto name = [&](const std::string& head) { return names->Call("MakeFileName", {0, head}).ToText(); };
  EXPECT_EQ(name("Sahyadri  Bank: C/A \"Pune\""), "Sahyadri Bank C A Pune");
  EXPECT_EQ(name("../.."), "Unnamed");
  EXPECT_NE(gSession->Modules().Item("LedgerworksModule")->GetForm("SelectAc"), nullptr);

  const FormPtr filter = gApp->GetForm("FilterAc");
  filter->Set("SelectionOnly", true);
  filter->Set("pBackOnly", true);
  const auto run = [&](const std::function<void()>& act) {
    runtime_.NextCommand = [&] {
      Do(act);
      return true;
    };
    Do([&] { gRuntime->Show(filter, true); });
  };
  run([&] {
    At<CommandButton>(filter, "cmdUnCheck").UserClick();
    AnswerMessage();
    At<CButton>(filter, "btnOKCancel", 0).UserClick();
    EXPECT_EQ(Messages(), Texts{"No account selected."});
    At<ListBox>(filter, "lstAccounts").UserCheck(1, true);
    At<ListBox>(filter, "lstAccounts").UserCheck(2, true);
    Key(*filter, keys::kF7);
  });
  EXPECT_FALSE(filter->Get("Cancelled").ToFlag());
  EXPECT_EQ(filter->Get("AcCnd").ToText(), "b.mcd not in (1)");
  EXPECT_EQ(filter->Get("CaptionTitle").ToText(), "Accounts: Sahyadri Bank, Pune; Suspense");
  gRuntime->Unload(*filter);
  run([&] { Do([&] { gRuntime->Unload(*filter, UnloadMode::CloseBox); }); });
  EXPECT_TRUE(filter->IsLoaded()) << "the caller still reads it";
  EXPECT_TRUE(filter->Get("Cancelled").ToFlag());
  gRuntime->Unload(*filter);
}

TEST_F(HostWork, FieldsOfAScreenAreKeptWithTheirKinds) {
  struct Screen {
    bool landscape = false;
    long copies = 5;
    double margin = 7;
    Amount rate;
    std::string name;
    bool operator==(const Screen&) const = default;
  };
  const Screen kept{true, 3, 0.25, Amount::OfText("9.5"), "A, \"B\"\n<|||>"};
  Screen screen = kept;
  StoredFields fields;
  fields.Add("Landscape", screen.landscape);
  fields.Add("Copies", screen.copies);
  fields.Add("Margin", screen.margin);
  fields.Add("Rate", screen.rate);
  fields.Add("Name", screen.name);
  CNameValues bag;
  fields.Save(bag);
  gApp->PutFirmSetting("Test", bag.Text());
  screen = {};
  fields.Load(CNameValues());
  EXPECT_EQ(screen, Screen()) << "what was never stored stays as it is";
  CNameValues stored;
  stored.Load(gApp->GetFirmSetting("Test"));
  fields.Load(stored);
  EXPECT_EQ(screen, kept);
}

}  // namespace
}  // namespace quillon
