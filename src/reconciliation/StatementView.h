#pragma once

#include <functional>
#include <string>

#include "reconciliation/DatedView.h"

namespace quillon {

/// The reconciliation statement: why books and bank disagree as on a date, in four sections between the
/// balance of the books and the adjusted one.
class StatementView : public DatedView {
 public:
  StatementView(WorkbenchAccount& account, CGridPlus& grid);

  /// A cleared date was stored from here.
  std::function<void(const ClearedDates::Change&)> DateStored;

  void SetAsOn(Date date) { asOn_ = date; }

  /// Asks for the date; false when the user went back.
  bool AskDate();

  /// Reads the statement anew as on its date.
  void Update();

  /// Opens the cleared date of the current row.
  void ZoomRow() override;

  /// The closing line belongs to the statement itself, so it prints as its last row and not as a footer.
  void Report(CReportOptions& options, const std::string& subtitle, bool print) override;

 protected:
  void Stored(const books::EntryKey& entry, int row, const std::string& dateText) override;
  Sided SidedOf(int row) const override;

 private:
  struct Section;

  void SetColumns();
  void Fill();
  Amount ShowBooksBalance();
  void AddSections(const std::string& condition, Section& debits, Section& credits, int& row);
  void AddSection(CDataSet& lines, Section& section, int& row);
  void AddLine(CDataSet& line, const Section& section, int row);
  void AddAdjustedBalance(Amount balance, int& row);
  void BeforeEdit(int row, int column, bool& cancel, std::string& action) const;
  void RowChange(int row);
  void KeyDown(KeyEvent& key);

  Date asOn_;
};

}  // namespace quillon
