#pragma once

#include "host/controls/CEditGrid.h"
#include "host/forms/ScreenForm.h"

namespace quillon {

/// "Standard Narrations": the firm's short codes, each with the narration that it stands for.
class frmNarrations : public ScreenForm {
 public:
  frmNarrations();

  CEditGrid Grid;

  /// Puts the list of the screen in the place of the firm's, whole or not at all; a row without a code or
  /// without a narration is left out. False when it was not stored, which the user was told.
  bool SaveNarrations();

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void Pressed(const std::string& key) override;
  void Print(bool print) override;
  bool HasUnsavedWork() const override { return dirty_; }
  GridModel* MainGrid() override { return &Grid; }

 private:
  void SetColumns();
  void FillGrid();
  void AddRow();
  void DeleteRow();
  void RemoveRow(int row);
  void StoreRows();
  void ValidateCode(int row, std::string& code, bool& cancel);

  bool dirty_ = false;
};

}  // namespace quillon
