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
  EXPECT_EQ(Grid().CellWidth(), 1000);
  Do([&] { Grid().UserMoveTo(30, 2); });
  EXPECT_EQ(Grid().CellLeft(), 1000);
  EXPECT_EQ(Grid().CellWidth(), 4760) << "the widest text takes the width beside the scroll bar";
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

class GridsOfEntries : public Grids {
 protected:
  /// Four shown rows, with a hidden one among them and a hidden column.
  void SetUp() override {
    OpenNewFirm();
    Do([&] { gRuntime->Show(form_); });
    const char* const rows[] = {"Date\tNarration\tBalance\tId",
                                "05-Apr-2024\tCheque 470251\t12,34,567.00 Dr.\t1",
                                "06-Apr-2024\tTo \"Asha\"\nMills\t-1,500.50\t2",
                                "07-Apr-2024\tConcealed\t9.00\t3",
                                "10-Apr-2024\tÜber Traders\t2,500.00 Cr.\t4",
                                "\t\tN I L\t5"};
    Grid().Rows = 0;
    Grid().Cols = 4;
    for (const char* row : rows) Grid().AddItem(row);
    Grid().SetColAlignment(2, kAlignRight);
    Grid().SetColWidth(3, 0);
    Grid().SetRowHeight(3, 0);
    Go(1, 2);
  }
  void Go(int row, int col) {
    Do([&] { Grid().UserMoveTo(row, col); });
  }
  std::string Copied(int shift = 0) {
    Key(*form_, 'C', keys::kCtrl | shift);
    return runtime_.ClipboardText();
  }
  /// Where the cursor comes to stand while the text is typed over the last one.
  std::string Found(const std::string& text) {
    Key(*form_, 'A', keys::kCtrl);
    TypeKeys(*form_, text);
    return Cursor();
  }
};

TEST_F(GridsOfEntries, AreCopiedAsSpreadsheetsReadThem) {
  EXPECT_EQ(Copied(), "1234567");
  EXPECT_EQ(Grid().SelectedFiguresText(), "");
  Key(*form_, keys::kEnd, keys::kShift);
  EXPECT_EQ(Copied(), "1234567\n-1500.5\n-2500\nN I L");
  EXPECT_EQ(Grid().SelectedFiguresText(), "3 amounts, sum 12,30,566.50, -2,500.00 to 12,34,567.00");
  Key(*form_, 'A', keys::kCtrl);
  EXPECT_EQ(
      Copied(keys::kShift),
      "Date\tNarration\tBalance\n2024-04-05\tCheque 470251\t1234567\n2024-04-06\t\"To \"\"Asha\"\"\nMills\"\t"
      "-1500.5\n2024-04-10\tÜber Traders\t-2500\n\t\tN I L");
  EXPECT_EQ(Cursor(), "1,2") << "the cursor stays";
  Key(*form_, keys::kDown);
  EXPECT_EQ(Copied(), "-1500.5");
  Do([&] { Grid().UserExtendTo(4, 1); });
  EXPECT_EQ(Cursor() + " " + Taken(), "2,2 2-4,1-2");
  EXPECT_EQ(Copied(), "\"To \"\"Asha\"\"\nMills\"\t-1500.5\nÜber Traders\t-2500");
  Key(*form_, keys::kSpace, keys::kCtrl);
  One("said", {{"text", "-1,500.50"}});
  Grid().Col = 3;
  EXPECT_EQ(Copied(), "2024-04-06\t\"To \"\"Asha\"\"\nMills\"\t-1500.5") << "a cursor nobody sees is its row";
}

TEST_F(GridsOfEntries, AreSearchedAsOneTypes) {
  int heard = 0;
  Grid().KeyDown = [&](KeyEvent&) { ++heard; };
  Grid().KeyPress = [&](int&) { ++heard; };
  Key(*form_, 'F', keys::kCtrl);
  heard = 0;
  for (const char* text : {"2500", "2,5", "500.00 cr"}) EXPECT_EQ(Found(text), "4,2") << text;
  for (const char* text : {"10/4", "10-4-24", "1004", "10 apr", "10-Apr-2024"})
    EXPECT_EQ(Found(text), "4,0") << text;
  EXPECT_EQ(Found("über"), "4,1");
  EXPECT_EQ(Found("ASHA"), "2,1");
  Found("concealed");
  EXPECT_FALSE(Grid().Finder.HasFound()) << "what is hidden is not found";
  EXPECT_EQ(Found("apr"), "2,0") << "from where the cursor stood when the box opened";
  Key(*form_, keys::kEnter);
  EXPECT_EQ(Cursor(), "4,0");
  Key(*form_, keys::kEnter);
  EXPECT_EQ(Cursor(), "1,0") << "on from the top";
  Key(*form_, keys::kEnter, keys::kShift);
  EXPECT_EQ(Cursor(), "4,0");
  EXPECT_TRUE(Grid().Finder.Marks("05-Apr-2024"));
  EXPECT_EQ(heard, 0) << "what is typed into the box is not the form's";
  Key(*form_, keys::kEscape);
  EXPECT_TRUE(form_->IsShownToUser());
  EXPECT_FALSE(Grid().Finder.Marks("05-Apr-2024"));
  Key(*form_, 'G', keys::kCtrl | keys::kShift);
  EXPECT_EQ(Cursor(), "2,0");
  Key(*form_, 'G', keys::kCtrl);
  EXPECT_EQ(Cursor(), "4,0");
}

TEST_F(GridsOfEntries, AreSortedAndNarrowedForLookingOnly) {
  Refuses([&] { Grid().Look.UserSort(1); }, "The rows of Grid stand in an order of their own");
  Grid().Look.IsAllowed = true;
  const auto sort = [&](int col) {
    Do([&] { Grid().Look.UserSort(col); });
    return Grid().ShownRows();
  };
  Go(2, 2);
  EXPECT_EQ(sort(2), (std::vector<int>{4, 2, 1, 5})) << "by value, texts behind";
  EXPECT_EQ(Cursor(), "2,2") << "the cursor stays on its row";
  Key(*form_, keys::kDown);
  EXPECT_EQ(Cursor(), "1,2");
  Key(*form_, keys::kHome);
  EXPECT_EQ(Cursor(), "4,2");
  Key(*form_, keys::kDown, keys::kShift);
  EXPECT_EQ(Copied(), "-2500\n-1500.5");
  EXPECT_TRUE(Grid().IsSelected(2, 2) && Grid().IsSelected(4, 2));
  EXPECT_FALSE(Grid().IsSelected(1, 2));
  EXPECT_EQ(sort(0), (std::vector<int>{1, 2, 4, 5}));
  EXPECT_EQ(sort(0), (std::vector<int>{4, 2, 1, 5})) << "downwards, what is empty last";
  Key(*form_, 'F', keys::kCtrl);
  TypeKeys(*form_, "apr");
  EXPECT_EQ(Cursor(), "2,0") << "the search walks the order on the screen";
  Key(*form_, keys::kEscape);
  EXPECT_EQ(sort(0), (std::vector<int>{1, 2, 4, 5}));
  EXPECT_FALSE(Grid().HasView());

  Key(*form_, 'F', keys::kCtrl | keys::kShift);
  TypeKeys(*form_, "500");
  EXPECT_EQ(Grid().ShownRows(), (std::vector<int>{2, 4}));
  Key(*form_, keys::kEnter);
  EXPECT_EQ(sort(2), (std::vector<int>{4, 2}));
  Refuses([&] { Grid().UserMoveTo(1, 1); }, "Grid row 1 is hidden");
  Key(*form_, keys::kEscape);
  EXPECT_EQ(Grid().ShownRows(), (std::vector<int>{4, 2, 1, 5})) << "Esc shows all rows again";
  EXPECT_TRUE(form_->IsShownToUser());
  Grid().AddItem("1\t2\t3");
  EXPECT_EQ(Grid().ShownRows(), (std::vector<int>{1, 2, 4, 5, 6})) << "new rows, the grid's own order";
  EXPECT_EQ(Grid().TextMatrix(1, 0), "05-Apr-2024");
}

TEST_F(GridsOfEntries, AnEditorIsLeftByItsValidationBeforeTheSearch) {
  bool refuses = true;
  Grid().BeforeEdit = [](int, int, bool&, std::string&) {};
  Grid().ValidateCell = [&](int, int, std::string&, bool& cancel) { cancel = refuses; };
  Do([&] { ASSERT_TRUE(Grid().UserEnterCell(2, 1)); });
  TypeKeys(*form_, "Asha");
  Key(*form_, 'F', keys::kCtrl);
  EXPECT_TRUE(Grid().EditMode());
  EXPECT_FALSE(Grid().Finder.IsOpen());
  refuses = false;
  Key(*form_, 'F', keys::kCtrl);
  EXPECT_EQ(Grid().TextMatrix(2, 1), "Asha");
  EXPECT_EQ(Found("über"), "4,1");
  Key(*form_, keys::kDown);
  EXPECT_EQ(Cursor(), "5,1") << "from what was found one goes on in the grid";
  TypeKeys(*form_, "new");
  EXPECT_EQ(Grid().EditBox.Text(), "new");
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
