#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/controls/CSelGrid.h"
#include "host/controls/CTextPlus.h"
#include "host/controls/CheckBox.h"
#include "host/controls/MSHFlexGrid.h"
#include "host/controls/TextBox.h"
#include "host/data/CDataSet.h"
#include "host/forms/ScreenForm.h"

namespace quillon {

/// "Mail Merge": writes a letter, keeps letters by their names, and prints one for each of the chosen parties
/// with the party's address at its head.
class frmMailMerge : public ScreenForm {
 public:
  frmMailMerge();

  /// A condition on FAMaster under the alias b; parties that stand under it are chosen at Load.
  std::string FilterCnd;

  /// 0 for a new letter.
  long LetterID = 0;

  /// The current party; 0 when none is chosen.
  long PartyCode = 0;

  CTextPlus txpRefNo;
  CTextPlus txpDate;
  CheckBox chkLHead;
  CTextPlus txpReportName;
  TextBox txtLetter;
  MSHFlexGrid Grid;
  CSelGrid SelGrid1;

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override { txpRefNo.SetFocus(); }
  void UnloadScreen() override;
  void Pressed(const std::string& key) override;
  void Print(bool print) override;
  void ExitPressed(bool& cancel) override;

 private:
  void DesignControls();
  void Connect();
  void NewLetter();
  void SaveLetter();
  void DeleteLetter();
  void OpenList();
  void CloseList();
  void TakeLetter();
  void SelectParties();
  void OpenParties(const std::string& sql);
  void StepParty(int direction);
  void ShowParty();
  void FillGrid();
  int AddAddress(int row);
  int AddLetter(const std::vector<std::string>& lines, int row);

  std::shared_ptr<CDataSet> rsParties_;
};

}  // namespace quillon
