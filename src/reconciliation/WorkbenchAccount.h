#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "books/EntryRows.h"
#include "host/controls/CGridPlus.h"
#include "host/controls/CMStrip.h"
#include "host/data/CDataSet.h"
#include "host/forms/Form.h"
#include "reconciliation/ClearedDates.h"

namespace quillon {

/// What the views of the workbench share: the account and period, the account's own statement that they stand
/// on, and the other side of an entry.
class WorkbenchAccount {
 public:
  /// `otherSide` shows the counter-account of the entry under the cursor.
  WorkbenchAccount(Form& screen, const long& code, const Date& first, const Date& last, CMStrip& otherSide);

  Form& Screen() const { return screen_; }
  long Code() const { return code_; }
  Date First() const { return first_; }
  Date Last() const { return last_; }

  /// Takes the grid of the screen that called the workbench, which the screen holds while it is open.
  void StandOn(CGridPlus& grid);
  void LetGo();

  /// The grid of the account's own statement; nothing when the workbench was opened without one.
  CGridPlus* Statement() const { return statement_; }

  /// How often that statement has read its marks from the books: what was stored since then stands in no row
  /// of it yet.
  std::int64_t MarksRead() const;

  /// Puts a cleared date into the statement's row of that entry, if it has one.
  void Echo(const books::EntryKey& entry, const std::string& dateText);

  /// Stores the cleared date of an entry that had another one; an empty date is none. Throws HostError for
  /// what is no entry.
  void StoreClearedDate(const books::EntryKey& entry, Date before, Date date);

  /// What was stored from here.
  ClearedDates Dates;

  bool ShowsReferences = true;

  /// The narration of a line of FAData, with the other side's name behind it while references are shown.
  std::string NarrationWithReference(CDataSet& line) const;

  /// As long as the answer is held, the other sides of the lines of FAData, named a, that meet the condition
  /// are known together; nothing while no references are shown.
  [[nodiscard]] std::shared_ptr<void> ExpectOtherSides(const std::string& condition) const;

  void ShowOtherSide(std::int64_t voucher, Amount amount);
  void OpenVoucher(std::int64_t voucher) const;

 private:
  Form& screen_;
  const long& code_;
  const Date& first_;
  const Date& last_;
  CMStrip& otherSide_;
  CGridPlus* statement_ = nullptr;
  std::unique_ptr<books::EntryRows> statementRows_;  // made when asked for
};

}  // namespace quillon
