#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "desk/screens/BankPayments.h"
#include "desk/screens/OutgoingLeaves.h"
#include "host/controls/CButton.h"
#include "host/controls/CTextPlus.h"
#include "host/controls/ControlArray.h"
#include "host/controls/ListBox.h"
#include "host/controls/PictureBox.h"
#include "host/forms/ListScreen.h"
#include "host/services/IPrinter.h"

namespace quillon {

/// "Print Cheques": a bank's payments without a cheque leaf, of which the chosen ones are printed one after
/// the other on the leaves in the tray. A cheque that is printed takes its leaf; after so many the run waits
/// for a look at them.
class frmChequeRun : public ListScreen, public AccountPeriod {
 public:
  frmChequeRun();

  /// Seconds after which a cheque that a printer has not done yet is asked about.
  int Patience = 30;

  Label lblTitle2;
  PictureBox picInputs;
  CTextPlus txpFirst;
  CTextPlus txpEvery;
  Label lblEvery;

  PictureBox picRun;
  Label lblRun;
  ListBox lstPrinted;
  ControlArray<CButton> btnRun;

  /// Reads the payments anew; those that are marked stay so.
  void FillGrid();

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override;
  void ShownAgain() override;
  void Pressed(const std::string& key) override;
  void Print(bool print) override;
  void ExitPressed(bool& cancel) override;
  void OpenRow(int row) override;
  long AccountOfRow(int row) const override;
  void OnKeyDown(KeyEvent& key) override;

 private:
  using Issue = OutgoingLeaves::Issue;

  /// The cheques of a run; the run is over when none is left and none waits for a look.
  struct Run {
    std::vector<std::int64_t> Vouchers;  ///< still to be printed, the first first
    std::size_t Whole = 0;
    std::int64_t Leaf = 0;  ///< the number of the leaf on top of the tray
    std::size_t Every = 1;
    bool AsksPrinter = true;
    std::vector<Issue> Seen;  ///< printed since the run waited last
  };

  void DesignControls();
  void Connect();
  OutgoingLeaves Leaves() const;
  void Mark(int row, bool marked);
  void MarkAll();
  void ShowChosen();
  bool RequireLeaf(std::int64_t number);
  void StartRun();
  void PrintOn();
  std::optional<Issue> PrintCheque(std::int64_t voucher);
  std::optional<Issue> Settle(const OutgoingLeaf& sent);
  IPrinter::JobFate AwaitJob(std::string& why) const;
  void Pause();
  void Next();
  void Spoilt();
  void EndRun();
  void Guarded(void (frmChequeRun::*step)());
  void ShowPanel(bool on);

  std::vector<BankPayment> payments_;
  std::set<std::int64_t> marked_;  // vouchers
  Run run_;
};

}  // namespace quillon
