#include <map>
#include <random>

#include "desk/sample/SampleFirm.h"
#include "host/data/CDataSet.h"
#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

constexpr const char* kContra = " and dTrnNature in (5002,5012,5024,5031,5041,5051)";

/// What the views say of the banks of generated firms, beside what the books say when they are asked
/// otherwise.
class BankBalances : public DeskTest, public testing::WithParamInterface<unsigned> {
 protected:
  void SetUp() override {
    const std::filesystem::path firm = folder_.Path() / "firm";
    MakeSampleFirm(firm, {{2023, 2024}, 500, GetParam(), false});
    desk_.OpenFirm(firm);
    runtime_.Ignore(desk_.App().MainWindow().MainForm().get());
  }

  struct Case {
    int Bank;
    Date First;
    Date Last;
  };

  /// Each bank over the year, and over periods that begin and end anywhere in it.
  std::vector<Case> Cases() const {
    std::mt19937 random(GetParam());
    const Date start = gSession->Year().StartDate();
    std::vector<Case> cases;
    for (const int bank : {101, 102, 103}) {
      cases.push_back({bank, start, gSession->Year().EndDate()});
      for (int i = 0; i < 4; ++i) {
        const Date first = i == 0 ? start : start.AddDays(static_cast<std::int64_t>(random() % 120));
        cases.push_back({bank, first, first.AddDays(static_cast<std::int64_t>(random() % 240))});
      }
    }
    return cases;
  }

  void Open(const Case& at) { statement_ = ShowStatement(at.Bank, at.First.Text(), at.Last.Text()); }
  void Close() {
    for (const FormPtr& form : runtime_.AllForms()) runtime_.Unload(*form);
    Events("sql");
  }
  CGridPlus& View(const char* name) { return At<CGridPlus>(bench_, name); }

  static std::string Sql(Date date) { return "'" + date.Format("yyyy-MM-dd") + "'"; }
  static std::string Entries(const Case& at) { return "dBook<>'MEM' and dcd=" + std::to_string(at.Bank); }
  Amount Sum(const Case& at, const std::string& where) {
    return Db().Lookup("FAData", "sum(dAmt)", Entries(at) + where).ToAmount();
  }

  /// The sum of the products of all days of the period, by the sign of the balance: first the days on which
  /// it was 0 or more.
  using Products = std::pair<Amount, Amount>;
  Products ByDays(const Case& at, const std::string& day, const std::string& counted, bool isBanks) {
    std::map<Date, Amount> movements;
    std::string query = "select " + day + ",dAmt from FAData where " + Entries(at);
    query += " and dBook<>'0B' and " + day + " between " + Sql(at.First) + " and " + Sql(at.Last) + counted;
    CDataSet set;
    for (set.Open(query, Db()); !set.Eof(); set.MoveNext()) {
      movements[set.Field(day).ToDate()] += set.Field("dAmt").ToAmount();
    }
    Amount balance = Sum(at, " and (dBook='0B' or " + day + "<" + Sql(at.First) + ")");
    Products products;
    for (Date date = at.First; date <= at.Last; date = date.AddDays(1)) {
      balance += movements[date];
      const Amount shown = isBanks ? -balance : balance;
      (shown >= Amount() ? products.first : products.second) += shown.Abs();
    }
    return products;
  }

  /// F5, and whatever it asks on the way to the table; false when improper contra entries forbid it.
  bool ShowInterest(const Case& at, const std::function<void()>& start) {
    const std::string between = " and dVchDate between " + Sql(at.First) + " and " + Sql(at.Last) + kContra;
    const bool any = Db().Lookup("FAData", "count(*)", Entries(at) + between).ToInteger() > 0;
    const bool isProper = Sum(at, between).IsZero();
    std::vector<int> presses;
    if (any) presses.push_back(keys::kEscape);
    if (any) AnswerMessage();
    if (isProper) presses.push_back(keys::kF7);
    std::size_t next = 0;
    runtime_.NextCommand = [&] {
      if (next == presses.size()) return false;
      Key(*runtime_.ActiveForm(), presses[next++]);
      return true;
    };
    Do(start);
    EXPECT_EQ(next, presses.size());
    EXPECT_EQ(Messages().size(), any ? 1U : 0U);
    runtime_.NextCommand = nullptr;
    return isProper;
  }

  void ExpectTable(const Products& products) {
    const CGridPlus& table = View("GridIntt");
    ASSERT_TRUE(table.Visible);
    std::map<int, Amount> sums;
    std::int64_t days = 0;
    for (int row = 1; row < table.Rows; ++row) {
      for (const int col : {7, 8}) sums[col] += gStd->ParseAmount(table.Cell(row, col));
      days += Variant(table.TextMatrix(row, 5)).ToInteger();
    }
    const GridFooter& footer = table.Footer;
    EXPECT_EQ(gStd->ParseAmount(footer.TextMatrix(0, 6)), products.second);
    EXPECT_EQ(gStd->ParseAmount(footer.TextMatrix(1, 6)), products.first);
    EXPECT_EQ(gStd->ParseAmount(footer.TextMatrix(2, 6)), (products.first - products.second).Abs());
    EXPECT_EQ(footer.TextMatrix(2, 5), std::to_string(days));
    EXPECT_EQ(gStd->ParseAmount(footer.TextMatrix(0, 7)), sums[7]);
    EXPECT_EQ(gStd->ParseAmount(footer.TextMatrix(1, 8)), sums[8]);
    EXPECT_FALSE((sums[7] + sums[8]).IsZero()) << "at some per cent a balance costs something";
  }

  FormPtr statement_;
  FormPtr bench_;
};

TEST_P(BankBalances, StatementPassBookAndBooksAgree) {
  for (const Case& at : Cases()) {
    SCOPED_TRACE(std::to_string(at.Bank) + ", " + at.First.Text() + " to " + at.Last.Text());
    const Amount atBank = -Sum(at, " and (dBook='0B' or dBankDate<=" + Sql(at.Last) + ")");
    Open(at);
    bench_ = ShowWorkbench(statement_);
    AnswerDate(at.Last.Text());
    Key(*bench_, keys::kF6);
    EXPECT_EQ(gStd->ParseAmount(View("GridStatement").Footer.TextMatrix(0, 5)), atBank);
    Key(*bench_, keys::kF7);
    const CGridPlus& book = View("GridPBook");
    EXPECT_EQ(gStd->ParseAmount(book.Footer.TextMatrix(0, 26)), atBank);
    EXPECT_EQ(book.TextMatrix(book.Rows - 1, 26),
              gStd->FormatAmount(atBank.Abs(), "c2") + (atBank > Amount() ? " Dr." : " Cr."));
    Amount withdrawals;
    Amount deposits;
    for (int row = 1; row < book.Rows; ++row) {
      withdrawals += gStd->ParseAmount(book.Cell(row, 24));
      deposits += gStd->ParseAmount(book.Cell(row, 25));
    }
    EXPECT_EQ(withdrawals - deposits, atBank);
    EXPECT_EQ(book.Footer.TextMatrix(0, 24), gStd->FormatAmount(withdrawals, "C2"));
    EXPECT_EQ(book.Footer.TextMatrix(0, 25), gStd->FormatAmount(deposits, "C2"));
    Close();
  }
}

TEST_P(BankBalances, ProductsAreTheSumOfTheDays) {
  int refused = 0;
  int shown = 0;
  for (const Case& at : Cases()) {
    SCOPED_TRACE(std::to_string(at.Bank) + ", " + at.First.Text() + " to " + at.Last.Text());
    const Products banks = ByDays(at, "dBankDate", "", true);
    const Products books = ByDays(at, "dVchDate",
                                  " and dTrnNature not in (5002,5012,5024,5031,5041,5051) and (dVchDate<>" +
                                      Sql(at.Last) + " or dTrnNature not in (5054,5055,5043,5032,5022,5023))",
                                  false);
    Open(at);
    bench_ = ShowWorkbench(statement_);
    Key(*bench_, keys::kF7);
    if (ShowInterest(at, [&] { bench_->UserKey(keys::kF5, 0, 0); })) ExpectTable(banks);
    runtime_.Unload(*bench_);
    const bool isShown =
        ShowInterest(at, [&] { At<CButtonBar>(statement_, "BtnBar1").UserPress("Interest"); });
    bench_ = runtime_.ActiveForm();
    EXPECT_EQ(bench_ != statement_, isShown);
    if (isShown) ExpectTable(books);
    ++(isShown ? shown : refused);
    Close();
  }
  EXPECT_GT(refused, 0) << "one bank has contra entries that do not come out even";
  EXPECT_GT(shown, 10);
}

INSTANTIATE_TEST_SUITE_P(Seeds, BankBalances, testing::Values(1U, 7U, 2024U),
                         [](const auto& seed) { return std::to_string(seed.param); });

}  // namespace
}  // namespace quillon
