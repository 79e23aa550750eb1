#include "tests/support/BankTest.h"

namespace quillon {

void BankTest::SetUp() {
  OpenNewFirm();
  AddAccount(101, "Sahyadri Bank", 47, "Pune");
  AddAccount(201, "Asha Traders");
  AddAccount(202, "Bharat Mills");
}

void BankTest::OpenBench(const std::string& from, const std::string& to) {
  statement_ = ShowStatement(101, from, to);
  bench_ = ShowWorkbench(statement_);
  Statements();
}

void BankTest::Choose(int filter) {
  Do([&] { At<ComboBox>(bench_, "cmbFilter").UserChoose(filter); });
}

void ExpectColumns(const GridModel& grid, const std::map<int, std::pair<std::string, int>>& shown) {
  const long unit = gRuntime->TextWidth(grid.Font, "9");
  for (int col = 0; col < grid.Cols; ++col) {
    const auto known = shown.find(col);
    EXPECT_EQ(grid.ColWidth(col), known == shown.end() ? 0 : known->second.second * unit) << col;
    EXPECT_EQ(grid.TextMatrix(0, col), known == shown.end() ? "" : known->second.first) << col;
  }
}

}  // namespace quillon
