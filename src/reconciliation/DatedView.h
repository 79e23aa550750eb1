#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "reconciliation/WorkbenchView.h"

namespace quillon {

/// A view in which cleared dates are typed. "=" takes the date of the row above, "00" fills down from the
/// nearest date above, an empty text removes the date; what is accepted is stored at once. A row that is no
/// entry is never dated and never a source of a date.
class DatedView : public WorkbenchView {
 public:
  /// Stores the cleared date of a row and shows it; an empty text removes it. Throws SubscriptError for a row
  /// that is not there, and HostError for a row that is no entry and for a text that is no date.
  void Save(int row, const std::string& dateText);

  /// Cleared dates of the account were stored elsewhere: those of After.
  virtual void TakeStored(const std::vector<ClearedDates::Change>& changes);

 protected:
  struct Columns {
    int Voucher;
    int Line;
    int Day;      ///< the entry's own date, which completes a date typed short
    int Cleared;  ///< what is typed
  };

  DatedView(WorkbenchAccount& account, CGridPlus& grid, const Columns& columns);

  books::EntryKey EntryOf(int row) const;

  /// Whether the date may be typed here at all.
  virtual bool IsAccepted(Date /*date*/) const { return true; }

  /// A date was stored for this entry; the row shows it already.
  virtual void Stored(const books::EntryKey& entry, int row, const std::string& dateText) = 0;

  /// The rows that show an entry; holds until LetRowsGo.
  std::vector<int> RowsOf(const books::EntryKey& entry);
  void LetRowsGo() { rows_.reset(); }

  void ForgetEdit() { cellEdited_ = false; }

  /// Whether the editor was typed in since it opened; asking ends the edit.
  bool TakeEdit();

  /// Whether something that the user should heed is to be told; of several dates pasted only the first time.
  bool ShouldWarn() { return !grid_.IsPasting() || !std::exchange(warned_, true); }

 private:
  void ValidateCell(int row, int col, std::string& text, bool& cancel);
  void FillDown(int row, std::string& text);
  void Pasting(bool begins);
  bool IsSource(int row) const;

  Columns columns_;
  std::unique_ptr<books::EntryRows> rows_;  // made when asked for
  bool cellEdited_ = false;
  std::optional<ClearedDates::Act> pasting_;
  bool warned_ = false;
};

}  // namespace quillon
