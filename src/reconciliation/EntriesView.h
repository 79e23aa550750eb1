#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

#include "host/controls/CheckBox.h"
#include "host/controls/ComboBox.h"
#include "reconciliation/DatedView.h"
#include "reconciliation/MarkedTotals.h"

namespace quillon {

class frmAcFilter2;

/// The entries: the rows of the account's own statement with the column "Cleared On", the totals of what is
/// marked, the filter, and the mark of a returned cheque.
class EntriesView : public DatedView {
 public:
  /// `returned` shows, over this view alone, whether the cheque under the cursor came back; `plain` is the
  /// colour that it has otherwise.
  EntriesView(WorkbenchAccount& account, CGridPlus& grid, ComboBox& filter, CheckBox& returned,
              const Control& plain);

  /// The filters, with all entries chosen.
  void FillFilter();

  /// Copies the statement's rows that the filter lets through.
  void Update();
  void UpdateMarkedTotals();
  void PutCursorOnLastRow();

  /// Shows the entries and what belongs to them, or hides them.
  void Show();
  void Hide();

  /// Asks for a period and fills, or empties, the cleared date of all entries that show. Dates that are there
  /// already stay.
  void MassMark(bool unmark);

  /// Asks which of the rows are to be seen, and hides the others.
  void Filter();

  void TakeStored(const std::vector<ClearedDates::Change>& changes) override;

  void LetGo();
  void ZoomRow() override;

 protected:
  bool IsAccepted(Date date) const override;
  void Stored(const books::EntryKey& entry, int row, const std::string& dateText) override;
  Sided SidedOf(int row) const override;

 private:
  /// What was stored from here, and how often the statement had read its marks by then.
  struct OwnMark {
    std::string Text;
    std::int64_t Read = 0;
  };

  void ShowFiltered(const frmAcFilter2& filter);
  bool IsLetThrough(const frmAcFilter2& filter, int row) const;
  void ShowSide(const std::string& side);
  void SetColumns();
  void CopyRows();
  void CopyRow(int row, int source);
  std::string Title() const;
  void ShowTotals();
  void ShowMarkedTotals();
  std::string ClearedOn(int source) const;
  std::string ReturnedAt(int source) const;
  bool IsOwnNewer(const OwnMark& mark) const { return mark.Read >= account_.MarksRead(); }
  void Remember(const books::EntryKey& entry, const std::string& dateText);
  void MassMarkRow(int row, Date date);

  void BeforeEdit(int row, int col, bool& cancel, std::string& action) const;
  void AfterEdit(int row);
  void RowChange(int row);
  void KeyDown(KeyEvent& key);
  void ShowReturned();
  void StoreReturned();

  ComboBox& filter_;
  CheckBox& returned_;
  const Control& plain_;
  MarkedTotals marked_;
  std::unordered_map<books::EntryKey, OwnMark, books::EntryKeyHash> ownDates_;
  std::unordered_map<std::int64_t, OwnMark> ownReturned_;
};

}  // namespace quillon
