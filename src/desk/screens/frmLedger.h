#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/forms/ListScreen.h"

namespace quillon {

class NarrationTexts;

/// "Ledger": the entries of many accounts of a period, one account behind the other, each with its opening
/// balance and totals, and the index of the pages that they are printed on.
class frmLedger : public ListScreen, public AccountPeriod {
 public:
  frmLedger();

  Label lblTitle2;

  /// Reads the accounts and their entries anew.
  void FillGrid();

  /// Opens the module's index of the ledger as it stands.
  void OpenIndex();

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override;
  void Pressed(const std::string& key) override;
  void Print(bool print) override;
  void OpenRow(int row) override;
  long AccountOfRow(int row) const override;
  void UnloadScreen() override;

 private:
  struct Account {
    std::int64_t Code = 0;
    std::string Head;
    std::string Station;
    int FirstRow = 0;
    int LastRow = 0;
  };
  struct Sums;

  void SetColumns();
  bool AskAccounts();
  void AskPeriod();
  void ReadAccounts();
  void AddAccount(Account& account, const std::shared_ptr<NarrationTexts>& narrations, int& row);
  void AddEntries(const Account& account, const std::shared_ptr<NarrationTexts>& narrations, int& row,
                  Sums& sums);
  int AddRow(int& row, std::int64_t account);
  void ShowAmount(int row, Amount amount, Sums& sums);
  void StorePages();
  void DropPages();
  std::string Title() const { return "Ledger"; }

  FormPtr filter_;  // the host's filter of accounts, with what was ticked in it
  std::string condition_;
  std::string words_;
  std::vector<Account> accounts_;
  std::string name_;  // of this ledger among those that are open
};

}  // namespace quillon
