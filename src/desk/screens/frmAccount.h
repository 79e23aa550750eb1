#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

#include "desk/screens/AccountFilter.h"
#include "desk/screens/AccountTool.h"
#include "host/controls/ControlArray.h"
#include "host/controls/Menu.h"
#include "host/forms/ListScreen.h"

namespace quillon {

/// The statement of an account: its entries of a period with a running balance. Other screens are opened on
/// it and read its grid, its titles and the account's master. While one of them stands on it, it keeps its
/// account, period and rows.
class frmAccount : public ListScreen, public AccountPeriod {
 public:
  frmAccount();

  // Without an account it asks for one first; empty dates take the open year.

  /// Begins with the balance of all that lies before the period.
  bool WithOpening = true;

  /// What the account's master says; reached late as FAMaster.AcHead and the like.
  class Master : public Object {
   public:
    Variant Get(const std::string& member) override;

    std::string AcHead;
    std::string Station;
  };
  std::shared_ptr<Master> FAMaster = std::make_shared<Master>();

  /// How often the cleared dates and returned marks of the rows were read from the books.
  std::int64_t MarksRead = 0;

  ControlArray<Label> lblTitle1;
  Label lblTitle2;
  Menu mmOthers;

  /// Reads the account's entries anew.
  void FillGrid();

  /// A new screen of the module, called from here; nothing, and a message, when there is no module.
  FormPtr ModuleScreen(const std::string& key);

  /// Whether the account is a bank's; the user is told when it is not.
  bool RequireBankAccount() const;

  /// Whether no other screen holds to the statement's rows; the user is told when one does.
  bool RequireNothingStandsOnIt() const;

  /// Shows a screen on this account and period.
  void ShowForPeriod(Form& screen);

  /// Asks which entries are to be seen. The others are hidden, and the filter stays in sight as long.
  void AskFilter();

  /// Ctrl+Shift+L: takes the filter away, or asks for one where none is in force.
  void Filter();

  /// What the account came to before the period, its opening balance included.
  Amount Opening() const;

  /// Of the account's entries in the period; FAData's alias is a.
  std::string EntriesCondition() const;

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override;
  void Pressed(const std::string& key) override;
  void Print(bool print) override;
  void OpenRow(int row) override;
  void ShownAgain() override;

 private:
  struct Sums;
  struct Entry;

  void DesignControls();
  void SetColumns();
  bool AskAccount();
  void OpenAnother();
  void AskPeriod();

  /// False when the books have no such account.
  bool ReadMaster();
  void RequireMaster();
  void FillRows();
  void ShowTitles();
  std::unordered_set<std::int64_t> ReturnedVouchers() const;
  void AddOpening(int& row, Sums& sums);
  void AddEntries(int& row, Sums& sums);
  void AddEntry(const Entry& entry, int row, bool returned, Sums& sums);
  void ShowTotals(const Sums& sums);
  void ShowFiltered();
  void PutCursorOn(int row);
  void ReadAnew();
  void ReadMarks();

  void OpenWorkbench(bool interest);
  void OpenMarking();
  void PopupOthers();

  std::vector<AccountTool> others_;
  AccountFilter filter_{*this};
  bool asking_ = false;  // while the picker is up, whose closing changes nothing by itself
};

}  // namespace quillon
