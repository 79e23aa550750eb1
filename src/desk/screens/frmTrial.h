#pragma once

#include <vector>

#include "desk/safety/TrialFirm.h"
#include "host/forms/ListScreen.h"

namespace quillon {

/// "What it would do": the balances and rows that a trial changed, to be looked at and printed before the
/// work is done.
class frmTrial : public ListScreen {
 public:
  frmTrial(std::string screen, std::vector<TrialLine> lines);

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override;
  void Print(bool print) override;

 private:
  std::string screen_;
  std::vector<TrialLine> lines_;
};

}  // namespace quillon
