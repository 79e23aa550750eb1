#include <fstream>
#include <sys/resource.h>
#include <unistd.h>

#include "tests/support/DeskFixture.h"

namespace quillon {
namespace {

class frmSheet : public Form {
 public:
  frmSheet() : Form("frmSheet"), Grid(*this, "Grid") {
    Width = 12000;
    Height = 9000;
    Grid.Cols = 3;
    Grid.Rows = 40;
    Grid.RowHeightMin = 300;
    Grid.Move(600, 900, 6000, 3000);
    Member("Count", Count);
    Member("IsOpen", IsOpen);
    Member("Limit", Limit);
  }

  CEditGrid Grid;
  int Count = 7;
  bool IsOpen = true;
  Amount Limit;
};

class Grids : public DeskTest {
 protected:
  Grids() : form_(std::make_shared<frmSheet>()) {
    Do([&] { gRuntime->Show(form_); });
  }

  CEditGrid& Grid() { return form_->Grid; }
  std::string Cursor() { return std::to_string(Grid().Row) + "," + std::to_string(Grid().Col); }
  std::string Taken() {
    const GridModel::Rectangle taken = Grid().Selection();
    return std::to_string(taken.firstRow) + "-" + std::to_string(taken.lastRow) + "," +
           std::to_string(taken.firstCol) + "-" + std::to_string(taken.lastCol);
  }

  std::shared_ptr<frmSheet> form_;
};

TEST_F(Grids, BeyondTheLimitsAreRefusedAndStayAsTheyWere) {
  Grid().SetTextMatrix(39, 2, "last");
  EXPECT_THROW(Grid().Rows = 300'000'000, HostError);
  EXPECT_THROW(Grid().Cols = 2'000'000'000, HostError);
  EXPECT_THROW(Grid().Set("Rows", 4'000'001), HostError);
  Grid().Cols = 1000;
  EXPECT_THROW(Grid().Rows = 64'001, HostError) << "more than 64 million cells";
  Grid().Cols = 3;
  EXPECT_EQ(Grid().Rows(), 40);
  EXPECT_EQ(Grid().TextMatrix(39, 2), "last");
  Grid().AddItem("a\tb\tc");
  EXPECT_EQ(Grid().TextMatrix(40, 2), "c");
  EXPECT_THROW(Grid().RowSel = 41, SubscriptError);
  EXPECT_EQ(Grid().RowSel(), Grid().Row());
}

TEST_F(Grids, RefuseWhenMemoryEnds) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizer ends the program where memory ends";
#else
  // In a process of its own, which may have 50 MB more than it has.
  const auto ask = [&] {
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    const rlim_t most = pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)) + 50'000'000;
    const rlimit limit{most, most};
    setrlimit(RLIMIT_AS, &limit);
    try {
      Grid().Rows = GridModel::kMostRows;
    } catch (const HostError&) {
      _exit(Grid().Rows() == 40 ? 0 : 1);
    }
    _exit(2);
  };
  EXPECT_EXIT(ask(), testing::ExitedWithCode(0), "");
#endif
}

TEST_F(Grids, MembersRefuseTextsOfAnotherKind) {
  EXPECT_THROW(form_->Set("Count", "12 apples"), HostError);
  EXPECT_THROW(form_->Set("IsOpen", "perhaps"), HostError);
  EXPECT_THROW(form_->Set("Limit", "1,000"), HostError);
  EXPECT_THROW(form_->Set("CallingForm", "f1"), HostError);
  EXPECT_THROW(Grid().Set("Rows", "many"), HostError);
  EXPECT_THROW(Grid().Set("Visible", "sometimes"), HostError);
  EXPECT_EQ(form_->Count, 7);
  EXPECT_TRUE(form_->IsOpen);
  form_->Set("Count", " -12");
  form_->Set("IsOpen", "False");
  form_->Set("Limit", "1000.5");
  EXPECT_EQ(form_->Count, -12);
  EXPECT_FALSE(form_->IsOpen);
  EXPECT_EQ(form_->Limit, Amount::OfText("1000.50"));
}

TEST_F(Grids, AreWalkedFromTheirFirstRowAndByScreenfuls) {
  Do([&] { Grid().UserMoveTo(1, 0); });
  Key(*form_, keys::kUp);
  EXPECT_EQ(Cursor(), "1,0") << "the titles are no place for the cursor";
  Grid().FixedRows = 0;
  Key(*form_, keys::kUp);
  EXPECT_EQ(Cursor(), "0,0");
  Key(*form_, keys::kPageDown);
  EXPECT_EQ(Cursor(), "10,0") << "ten rows of 300 fill the grid";
  for (int row = 11; row <= 25; ++row) Grid().SetRowHeight(row, 0);
  Grid().SetRowHeight(30, 1200);
  Key(*form_, keys::kPageDown);
  EXPECT_EQ(Cursor(), "32,0") << "hidden rows take no room, high ones more";
  Key(*form_, keys::kPageUp);
  EXPECT_EQ(Cursor(), "10,0");
  Key(*form_, keys::kHome);
  EXPECT_EQ(Cursor(), "0,0");
  Grid().SetRowHeight(0, 100);
  EXPECT_EQ(Grid().RowHeight(0), 300) << "no row is lower than the least height";
}

TEST_F(Grids, AreSelectedByShiftAndTheArrows) {
  Do([&] { Grid().UserMoveTo(5, 1); });
  for (const int key : {keys::kDown, keys::kDown, keys::kLeft, keys::kUp}) Key(*form_, key, keys::kShift);
  EXPECT_EQ(Cursor(), "5,1");
  EXPECT_EQ(Taken(), "5-6,0-1");
  Grid().SelectionMode = 1;
  EXPECT_EQ(Taken(), "5-6,0-2");
  Grid().SelectionMode = 2;
  EXPECT_EQ(Taken(), "1-39,0-1");
  Grid().SelectionMode = 0;
  Key(*form_, keys::kDown);
  EXPECT_EQ(Taken(), "6-6,1-1") << "without Shift the selection goes with the cursor";
}

TEST_F(Grids, TellWhereTheCellOfTheCursorIs) {
  Grid().Title = "Parties";
  Grid().SetTextMatrix(0, 1, "Head");
  Grid().SetColWidth(0, 0);
  Grid().SetColWidth(1, 1000);
  Grid().SetColWidth(2, 1880);
  Do([&] { Grid().UserMoveTo(2, 1); });
  EXPECT_EQ(Grid().CellTop(), 345 + 300 + 300);
  EXPECT_EQ(Grid().CellHeight(), 300);
  EXPECT_EQ(Grid().CellWidth(), 2000) << "the columns share the width beside the scroll bar";
  Do([&] { Grid().UserMoveTo(30, 2); });
  EXPECT_EQ(Grid().CellLeft(), 2000);
  EXPECT_EQ(Grid().CellTop() + Grid().CellHeight(), Grid().Height()) << "scrolled into sight at the bottom";
  Do([&] { Grid().UserMoveTo(29, 2); });
  EXPECT_EQ(Grid().CellTop() + 2 * Grid().CellHeight(), Grid().Height());
  EXPECT_EQ(Grid().CellPlace(29, 0).width, 0) << "a hidden cell has no place";
  Refuses([&] { Grid().UserMoveTo(29, 0); }, Grid().Name() + " column 0 is hidden");
  Refuses([&] { Grid().UserSelect(28, 1, 29, 0); }, Grid().Name() + " column 0 is hidden");
  Grid().Col = 0;
  Do([&] { Grid().UserDoubleClickRow(28); });
  EXPECT_EQ(Cursor(), "28,1") << "a person comes to stand in what he sees";
}

TEST_F(Grids, RowsPutInAndTakenOutLeaveTheEditorOnItsRow) {
  Grid().BeforeEdit = [](int, int, bool&, std::string&) {};
  Grid().SetTextMatrix(4, 0, "four");
  Do([&] {
    Grid().UserEnterCell(5, 0);
    Grid().UserType("typed");
    Grid().AddItem("new", 4);
    Grid().EndEdit();
  });
  EXPECT_EQ(RowText(Grid(), 4, {0}) + RowText(Grid(), 5, {0}) + RowText(Grid(), 6, {0}), "newfourtyped");
  Do([&] {
    Grid().UserEnterCell(6, 0);
    Grid().UserType("lost");
    Grid().RemoveItem(6);
  });
  EXPECT_FALSE(Grid().EditMode());
  EXPECT_EQ(RowText(Grid(), 5, {0}), "four");
  EXPECT_EQ(Grid().Rows(), 40);
  EXPECT_THROW(Grid().AddItem("x", 41), SubscriptError);
}

}  // namespace
}  // namespace quillon
