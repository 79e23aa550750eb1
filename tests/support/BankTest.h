#pragma once

#include "tests/support/DeskFixture.h"

namespace quillon {

/// Screens on the bank 101, "Sahyadri Bank", beside the parties 201, "Asha Traders", and 202, "Bharat Mills".
class BankTest : public DeskTest {
 protected:
  void SetUp() override;

  /// The bank's statement of account in a period, and the workbench on it.
  void OpenBench(const std::string& from = "01-Apr-2024", const std::string& to = "31-Mar-2025");

  /// The rows of the statement of account, and those of the workbench's views.
  CGridPlus& Source() { return At<CGridPlus>(statement_, "Grid"); }
  CGridPlus& Entries() { return At<CGridPlus>(bench_, "Grid"); }
  CGridPlus& StatementRows() { return At<CGridPlus>(bench_, "GridStatement"); }
  CGridPlus& PassBookRows() { return At<CGridPlus>(bench_, "GridPBook"); }
  CGridPlus& InterestRows() { return At<CGridPlus>(bench_, "GridIntt"); }
  CButtonBar& Bar() { return At<CButtonBar>(bench_, "BtnBar1"); }
  CheckBox& Returned() { return At<CheckBox>(bench_, "chkReturned"); }

  /// Picks an item of the filter: 0 all entries, 1 the marked ones, 2 the others.
  void Choose(int filter);

  FormPtr statement_;
  FormPtr bench_;
};

/// The titles of the columns that a grid shows, joined by bars.
std::string ShownTitles(const GridModel& grid);

/// The captions of the buttons that a bar shows, joined by bars.
std::string ShownCaptions(CButtonBar& bar);

}  // namespace quillon
