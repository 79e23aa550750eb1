#include "tests/support/BankTest.h"

#include "host/values/Text.h"

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

std::string ShownTitles(const GridModel& grid) {
  std::vector<int> shown;
  for (int col = 0; col < grid.Cols; ++col) {
    if (grid.ColWidth(col) > 0) shown.push_back(col);
  }
  return RowText(grid, 0, shown);
}

std::string ShownCaptions(CButtonBar& bar) {
  std::vector<std::string> shown;
  for (int i = 0; i < bar.Count(); ++i) {
    if (bar.Buttons(i).Visible()) shown.push_back(bar.Buttons(i).Caption());
  }
  return text::Join(shown, "|");
}

}  // namespace quillon
