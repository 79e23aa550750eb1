#pragma once

#include <memory>
#include <string>

#include "host/controls/CGridPlus.h"
#include "host/controls/ControlArray.h"
#include "host/data/CDataSet.h"
#include "host/forms/ScreenForm.h"

namespace quillon {

/// The statement of an account: its entries of a period with a running balance. Other screens are opened on
/// it and read its grid, its titles and the account's master.
class frmAccount : public ScreenForm {
 public:
  frmAccount();

  /// 0 asks for an account first; empty dates take the open year.
  long AccountCode = 0;
  Date Date1;
  Date Date2;

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

  ControlArray<Label> lblTitle1;
  Label lblTitle2;
  CGridPlus Grid;

  /// Reads the account's entries anew.
  void FillGrid();

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override;
  void ButtonPressed(int index) override;
  void OnActivate() override;
  void UnloadScreen() override;
  GridModel* MainGrid() override { return &Grid; }

 private:
  struct Sums;

  void PlaceControls();
  void SetColumns();
  bool AskAccount();
  void AskPeriod();
  void ShowTitles();
  void AddOpening(int& row, Sums& sums);
  void AddEntries(int& row, Sums& sums);
  void AddEntry(CDataSet& entry, int row, bool returned, Sums& sums);

  /// A new screen of the module, called from here; nothing, and a message, when there is no module.
  FormPtr ModuleScreen(const std::string& key);
  void OpenWorkbench(bool interest);
  void OpenMarking();
  void OpenReturnedCheques();

  /// Shows a screen of the module on this account and period.
  void ShowForPeriod(Form& screen);
  void Grid_KeyDown(KeyEvent& key);
  void OpenVoucher();

  FormPtr markings_;  // while dates may have been stored behind this grid
};

}  // namespace quillon
