#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>

#include "desk/screens/DayBookFilter.h"
#include "host/data/CDataSet.h"
#include "host/forms/ListScreen.h"

namespace quillon {

class NarrationTexts;

/// "Day Book": the entries of all accounts of a period in the order of their days, under a filter, or what
/// they come to on each day.
class frmDayBook : public ListScreen, public AccountPeriod {
 public:
  frmDayBook();

  Label lblTitle2;

  /// Reads the entries, or the totals of the days, anew.
  void FillGrid();

  /// Ctrl+Shift+L: takes the filter away, or asks for one where none is in force.
  void Filter();

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override { FillGrid(); }
  void ShownAgain() override;
  void Pressed(const std::string& key) override;
  void Print(bool print) override;
  void OpenRow(int row) override;
  long AccountOfRow(int row) const override;

 private:
  struct Sums;

  void SetColumns();
  void ShowTitles();
  void AskFilter();
  void AskPeriod();
  void PressTotals();
  void OpenGraph();
  std::string EntriesQuery() const;
  std::unordered_map<std::int64_t, std::string> Documents() const;
  void AddEntries(int& row, Sums& sums);
  void AddEntry(const CDataSet& entry, int row, Sums& sums);
  void AddDayTotals(int& row, Date day, const Sums& sums);
  void AddDays(int& row, Sums& sums);
  void ShowSums(int row, const Sums& sums);
  int NextRow(int& row);

  FormPtr filterDialog_;
  DayBookFilter filter_;
  bool showsDays_ = false;
  std::string amounts_;  // the range that the days are reckoned under, as SQL and in words
  std::string amountWords_;
  bool asking_ = false;
};

}  // namespace quillon
