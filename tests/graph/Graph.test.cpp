#include <numeric>

#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

/// A party's graph over the year 2024 and beside 2023, where it goes by another code.
class GraphTest : public DeskTest {
 protected:
  void SetUp() override {
    OpenNewFirm();
    AddAccount(201, "Asha Traders", 140, "Surat");
    AddAccount(101, "Sahyadri Bank", 47);
    Db().Execute("insert into CtgMaster (CtgNo,CtgName,CtgType) values (140,'Creditors','Liabilities')");
  }

  void Enter(const char* date, const char* amount, int account = 201, const char* book = "BNK") {
    AddVoucher(
        {.id = ++voucher_, .date = date, .amount = amount, .book = book, .other = 101, .account = account});
  }

  /// Entries of the year 2023, and the code of the party there.
  void EnterBefore(const Texts& lines) {
    const std::shared_ptr<FinYear> year = gSession->NewYear();
    bool ok = false;
    year->OpenYear(2023, ok);
    ASSERT_TRUE(ok);
    year->Db().Execute("insert into FAMaster (mcd,mhd,mst,mbshno) values (77,'Asha Traders','Surat',140)");
    for (const std::string& line : lines) {
      const auto comma = line.find(',');
      year->Db().Execute("insert into FAData (VoucherID,dVchSubNo,dVchDate,dcd,dAmt,dBook) values (" +
                         std::to_string(++voucher_) + ",1,'" + line.substr(0, comma) + "',77," +
                         line.substr(comma + 1) + ",'BNK')");
    }
  }

  void OpenGraph(const char* tool, int account = 201, const std::string& from = "",
                 const std::string& to = "") {
    const FormPtr statement = ShowStatement(account, from, to);
    runtime_.NextCommand = [this, tool] {
      runtime_.PickFromMenu(tool);
      return true;
    };
    Key(*statement, keys::kF7);
    graph_ = runtime_.ActiveForm();
    ASSERT_EQ(graph_->Name(), "frmGraph");
  }

  /// A graph of queries of the test's own.
  void OpenOwn(const std::string& query, const std::map<std::string, Variant>& members) {
    graph_ = gSession->Modules().Item("DutyworksModule")->GetForm("Graph");
    graph_->Set("FYear", std::static_pointer_cast<Object>(gSession->CurrentYear()));
    graph_->Set("RMinDate", Date::Of(2024, 4, 1));
    graph_->Set("RMaxDate", Date::Of(2025, 3, 31));
    graph_->Set("GraphQry", query);
    graph_->Set("AmtTxt", "Amount");
    graph_->Set("GraphNeg", 1);
    for (const auto& [member, value] : members) graph_->Set(member, value);
    Do([this] { gApp->ShowForm(graph_); });
  }

  MSChart& Chart() { return At<MSChart>(graph_, "Graph"); }
  MSHFlexGrid& Table() { return At<MSHFlexGrid>(graph_, "Grid"); }
  void Press(const char* button, int index) {
    Do([&] { At<CommandButton>(graph_, button, index).UserClick(); });
  }
  bool IsOn(const char* button, int index) { return At<CommandButton>(graph_, button, index).Enabled; }
  std::string AxisTitle() { return Chart().Plot.Axis(MSChartPlot::kAxisY).AxisTitle.Text(); }
  Texts Titles() {
    Texts titles;
    for (int column = 1; column <= Chart().DataGrid.ColumnCount(); ++column)
      titles.push_back(Chart().DataGrid.ColumnLabel(column));
    return titles;
  }
  std::string Row(int row) {
    std::vector<int> cols(static_cast<std::size_t>(Table().Cols()));
    std::iota(cols.begin(), cols.end(), 0);
    return RowText(Table(), row, cols);
  }

  int voucher_ = 0;
  FormPtr graph_;
};

TEST_F(GraphTest, APartysYearByMonthQuarterAndDayBesideTheYearBefore) {
  Enter("2024-04-01", "-1000.50");
  Enter("2024-04-01", "-0.25");
  Enter("2024-07-15", "400");
  Enter("2025-03-31", "-60000");
  Enter("2024-05-05", "-9", 201, "MEM");
  Enter("2024-05-06", "-9", 201, "0B");
  EnterBefore({"2023-04-10,-120000.75", "2024-02-29,-5", "2023-03-31,-7"});
  OpenGraph("Graph");
  EXPECT_EQ(At<Label>(graph_, "lblTitle1", 1).Caption(), "Asha Traders, Surat");
  EXPECT_EQ(Row(0), "|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec|Jan|Feb|Mar|Total");
  EXPECT_EQ(Row(1), "24-25|1000|0|0|-400|0|0|0|0|0|0|0|60000|60600") << "a creditor's credits stand upright";
  EXPECT_EQ(Chart().DataGrid.RowLabel(10), "Jan 2025");
  EXPECT_EQ(AxisTitle(), "Amount");
  EXPECT_FALSE(Chart().ShowLegend);
  EXPECT_FALSE(IsOn("cmdCompare", 2)) << "there is no year 2025";
  EXPECT_FALSE(IsOn("cmdCompare", 3));
  Statements();
  Press("cmdCompare", 1);
  EXPECT_EQ(Statements().size(), 1U);
  EXPECT_EQ(Titles(), (Texts{"2023-2024", "2024-2025"}));
  EXPECT_EQ(Row(1), "23-24|120000|0|0|0|0|0|0|0|0|0|5|0|120005");
  EXPECT_EQ(AxisTitle(), "Amount in  '000s");
  EXPECT_DOUBLE_EQ(Chart().DataGrid.GetData(1, 2), 1.00075) << "one divisor for both years";
  EXPECT_EQ(Chart().DataGrid.RowLabel(10), "Jan");
  EXPECT_TRUE(Chart().ShowLegend);
  Press("cmdPeriod", 0);
  EXPECT_EQ(Row(0), "|Apr-Jun|Jul-Sep|Oct-Dec|Jan-Mar|Total");
  EXPECT_EQ(Row(2), "2024-2025|1000|-400|0|60000|60600.75");
  Press("cmdCummlative", 1);
  EXPECT_EQ(Row(2), "2024-2025|1000|600|600|60600|62803");
  EXPECT_FALSE(IsOn("cmdCummlative", 1));
  EXPECT_TRUE(IsOn("cmdCummlative", 0));
  Press("cmdPeriod", 2);
  EXPECT_EQ(Chart().DataGrid.RowCount(), 365);
  EXPECT_EQ(Chart().DataGrid.ColumnCount(), 1);
  EXPECT_DOUBLE_EQ(Chart().DataGrid.GetData(1, 1), 1000.75);
  EXPECT_DOUBLE_EQ(Chart().DataGrid.GetData(365, 1), 60600.75);
  EXPECT_EQ(Row(0), "|Apr-Jun|Jul-Sep|Oct-Dec|Jan-Mar|Total") << "the table stays";
  Press("cmdPeriod", 1);
  Press("cmdCompare", 0);
  Press("cmdCompare", 1);
  EXPECT_TRUE(Statements().empty()) << "each year is read once";
  Key(*graph_, keys::kEscape);
  EXPECT_EQ(runtime_.ActiveForm()->Name(), "frmAccount");
}

TEST_F(GraphTest, APeriodFromJanuaryIsCalledByItsYear) {
  EnterBefore({"2024-01-05,-40", "2023-12-31,-5"});
  OpenGraph("Graph", 201, "01-Jan-2025", "31-Mar-2025");
  Press("cmdCompare", 1);
  EXPECT_EQ(Titles(), (Texts{"2023-24", "2024-25"}));
  EXPECT_EQ(Row(1), "23-24|0|0|0|0|0|0|0|0|0|40|0|0|40");
}

TEST_F(GraphTest, DebitsStandAgainstCreditsWhicheverWayTheGroupIsTurned) {
  Enter("2024-04-02", "700");
  Enter("2024-04-03", "-250.5");
  Enter("2024-06-03", "-100000.01");
  OpenGraph("DebitsCredits", 201, "01-Apr-2024", "30-Jun-2024");
  EXPECT_EQ(Titles(), (Texts{"Debits", "Credits"}));
  EXPECT_EQ(Row(1), "Debits|700|0|0|0|0|0|0|0|0|0|0|0|700");
  EXPECT_EQ(Row(2), "Credits|250|0|100000|0|0|0|0|0|0|0|0|0|100250");
  EXPECT_EQ(AxisTitle(), "Amount in  '000s");
  const auto color = [this](int row) { return Table().Paints(row).at(0).backColor; };
  EXPECT_EQ(color(1), 0x00C800);
  EXPECT_EQ(color(2), 0x0000C8);
  for (int button = 0; button < 4; ++button) EXPECT_FALSE(IsOn("cmdCompare", button));
  Press("cmdPeriod", 0);
  EXPECT_EQ(Row(2), "Credits|100250|0|0|0|100250.51");
}

TEST_F(GraphTest, TitlesUnitsAndColourAreTheCallersAndFailuresLeaveTheFormOpen) {
  const std::string days =
      "select cast('2024-04-01' as date) as gdate,cast(100000 as numeric(18,4)) as gamt from rdb$database "
      "union all select cast('2024-04-02' as date),cast(50000 as numeric(18,4)) from rdb$database";
  const std::string broken = "select gdate from nowhere";
  OpenOwn(days, {{"UnitTxt", "Kg"},
                 {"gColor", "10,20,30"},
                 {"GraphNeg", -1},
                 {"GraphQryPrv", broken},
                 {"GraphQryNxt", days},
                 {"FYPrev", std::static_pointer_cast<Object>(gSession->CurrentYear())},
                 {"FYNext", std::static_pointer_cast<Object>(gSession->CurrentYear())},
                 {"LTitlePrev", "Old"},
                 {"LTitleCurrent", "This"},
                 {"LTitleNext", "New"}});
  EXPECT_EQ(desk_.App().Windows().size(), 1U) << "nobody called it, so it stands in the list of windows";
  EXPECT_EQ(AxisTitle(), "Amount in  '000 Kg") << "the month is above 100,000";
  EXPECT_EQ(Titles(), Texts{"2024-2025"});
  EXPECT_EQ(Table().Paints(1).at(0).backColor, 0x1E140A);
  EXPECT_EQ(Row(1).substr(0, 13), "24-25|-150000");
  Press("cmdPeriod", 2);
  EXPECT_EQ(AxisTitle(), "Amount in Kg") << "no day is";
  Press("cmdCompare", 3);
  EXPECT_EQ(Errors().size(), 2U) << "a query that fails, and a day before the first";
  Press("cmdPeriod", 1);
  EXPECT_EQ(Titles(), (Texts{"Old", "This", "New"}));
  EXPECT_EQ(Row(3), "New|0|0|0|0|0|0|0|0|0|0|0|0|0");
  Press("cmdPeriod", 0);
  EXPECT_EQ(Titles(), (Texts{"2023-2024", "2024-2025", "2025-2026"}));
  Press("cmdCompare", 2);
  EXPECT_EQ(Titles(), (Texts{"This", "New"}));
}

TEST_F(GraphTest, APeriodOfMoreThanAYearIsToldAndDrawnByMonth) {
  Enter("2024-03-31", "5");
  Enter("2025-04-02", "6");
  AnswerMessage();
  OpenOwn("select dVchDate as gdate,dAmt as gamt from FAData where dcd=201 order by dVchDate",
          {{"RMaxDate", Date::Of(2025, 4, 5)}, {"GraphType", "D"}});
  EXPECT_EQ(Told(), Texts{"E: Error : period more than 366 days not allowed in graph."});
  EXPECT_EQ(Errors().size(), 1U) << "day 367 has no place";
  EXPECT_EQ(gRuntime->MousePointer(), kPointerDefault);
  ASSERT_TRUE(graph_->IsLoaded());
  Press("cmdPeriod", 1);
  EXPECT_EQ(Row(1), "24-25|0|0|0|0|0|0|0|0|0|0|0|5|5") << "the day before the first counts in its month";
}

TEST_F(GraphTest, ZoomScrollsAndCancelLeavesTheScreenAsItWas) {
  Enter("2024-04-02", "-700");
  OpenGraph("Graph");
  const auto& view = At<PictureBox>(graph_, "Picture2");
  auto& across = At<ScrollBar>(graph_, "HScroll1");
  auto& zoom = At<ComboBox>(graph_, "cmbZoom");
  EXPECT_FALSE(across.Visible);
  Do([&] { zoom.UserChoose("150%"); });
  EXPECT_TRUE(across.Visible);
  EXPECT_NEAR(across.Max(), static_cast<int>(view.Width / 200), 1);
  Do([&] { across.UserScroll(across.Max); });
  EXPECT_EQ(Chart().Left(), -100L * across.Max);
  Press("cmdGraphStyle", 3);
  EXPECT_EQ(Chart().chartType(), MSChart::k3dBar);

  runtime_.Laid.Add({{"to", "printdialog"}, {"cancel", true}});
  Press("cmdPrint", 0);
  EXPECT_EQ(Chart().Left(), -100L * across.Max) << "cancelled";
}

}  // namespace
}  // namespace quillon
