#pragma once

#include "desk/safety/BulkJournal.h"
#include "host/forms/ListScreen.h"

namespace quillon {

/// "Bulk Work": the journal of what changed many entries, and the way back to before each run.
class frmBulkRuns : public ListScreen {
 public:
  frmBulkRuns();

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override { FillGrid(); }
  void ShownAgain() override { FillGrid(); }
  void Pressed(const std::string& key) override;
  void OpenRow(int row) override;
  void Print(bool print) override;

 private:
  void FillGrid();
  std::string CopyOf(int run) const;
  void LookAtCopy(int run) const;
  void GoBack(int run);
};

}  // namespace quillon
