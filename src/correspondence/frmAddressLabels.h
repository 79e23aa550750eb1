#pragma once

#include <string>

#include "host/controls/MSHFlexGrid.h"
#include "host/data/CDataSet.h"
#include "host/data/CNameValues.h"
#include "host/forms/ScreenForm.h"

namespace quillon {

/// "Address Labels": the chosen parties as a sheet of labels, several across, that can be trimmed and
/// printed. Envelopes and letters are opened from it for the same parties.
class frmAddressLabels : public ScreenForm {
 public:
  frmAddressLabels();

  /// The party under the cursor; 0 where there is no label.
  long CurCode = 0;
  int ColCount = 0;

  /// The party filter: a condition on FAMaster under the alias b, its words, order and join.
  std::string sFilterCnd;
  std::string sFilterTxt;
  std::string sOrderBy;
  std::string sJoinCnd;
  CNameValues Config;

  /// Move the cursor one label on or back in reading order and answer its party; 0, and the cursor stays,
  /// when there is no label that way.
  long NextCode();
  long PreviousCode();

  /// Reads the parties anew.
  void FillLabels();

  Label lblGridTitle;
  MSHFlexGrid Grid;

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override;
  void ShownAgain() override;
  void Pressed(const std::string& key) override;
  void Print(bool print) override;
  GridModel* MainGrid() override { return &Grid; }

 private:
  const char* ConfigKey() const;
  void SetColumns();
  std::string Query() const;
  void AddLabels(CDataSet& parties);
  std::string TextOf(std::vector<std::string> lines, const CDataSet& party) const;
  void ShowCursor();
  long GoTo(int row, int col);
  bool SelectParties();
  void ShowDetails();
  void UpdateLabel();
  void RemoveLabels();
  void Configure();
  void OpenEnvelope();
  void OpenLetter();

  bool isTextMode_ = false;
  bool detailsOpened_ = false;
};

}  // namespace quillon
